#pragma once

#include "design/RowListModel.h"
#include "model/ScanSummary.h"

#include <QList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// A list of stored scans shown by a view, by their summaries. A new list is taken in by removing
// and inserting rows, keyed by id, so that the rows both lists hold stay where they are: the view
// keeps its place and its delegates instead of starting over.
class ResultListModel : public RowListModel<ResultListModel, QList<ScanSummary>> {
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

    using RowListModel::RowListModel;

    int count() const { return static_cast<int>(m_rows.size()); }
    const QList<ScanSummary>& results() const { return m_rows; }

signals:
    void countChanged();

protected:
    QVariant rowData(const ScanSummary& summary, int role) const override;
    void resetRows(QList<ScanSummary> results);
    // Becomes the given list, row by row. Only where the two order their common rows
    // differently, an id is listed twice or the changes are too scattered, are the rows replaced
    // in place instead.
    void syncRows(const QList<ScanSummary>& latest);
    void insertRow(int row, const ScanSummary& result);
    void removeRowAt(int row);

private:
    bool syncOneSpan(const QList<ScanSummary>& latest);
    void replaceRows(const QList<ScanSummary>& latest);
    void removeRowsMissingFrom(const QHash<QUuid, qsizetype>& latestRows);
    // `kept` holds the rows left of the list before, by id.
    void insertAndUpdateRows(const QList<ScanSummary>& latest, const QHash<QUuid, qsizetype>& kept);
};

} // namespace tessarine
