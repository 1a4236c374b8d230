#pragma once

#include "model/ScanSummary.h"

#include <QAbstractListModel>
#include <QList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// A list of stored scans shown by a view, by their summaries. A new list is taken in by removing
// and inserting rows, keyed by id, so that the rows both lists hold stay where they are: the view
// keeps its place and its delegates instead of starting over.
class ResultListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        SummaryRole = Qt::UserRole + 1,
        RootNameRole,
        RootPathRole,
        FolderNameRole,
        TotalSizeRole,
        FileCountRole,
        ScanDateRole, // a list's roles of its own follow this one
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    int count() const { return static_cast<int>(m_results.size()); }
    const QList<ScanSummary>& results() const { return m_results; }

signals:
    void countChanged();

protected:
    void resetRows(QList<ScanSummary> results);
    // Becomes the given list. Only where the two order their common rows differently, or an id
    // is listed twice, is the whole list replaced.
    void syncRows(const QList<ScanSummary>& latest);
    void insertRow(int row, const ScanSummary& result);
    void removeRowAt(int row);

    QList<ScanSummary> m_results;

private:
    void removeRowsMissingFrom(const QHash<QUuid, qsizetype>& latestRows);
    // `kept` holds the rows left of the list before, by id.
    void insertAndUpdateRows(const QList<ScanSummary>& latest, const QHash<QUuid, qsizetype>& kept);
};

} // namespace tessarine
