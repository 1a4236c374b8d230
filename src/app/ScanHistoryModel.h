#pragma once

#include "model/Records.h"

#include <QAbstractListModel>
#include <QList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The stored results, newest first, as the sidebar, the landing strip and the history list see
// them. Changed only by the application state.
class ScanHistoryModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The scan history belongs to AppState")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        ResultRole = Qt::UserRole + 1,
        RootNameRole,
        RootPathRole,
        FolderNameRole,
        TotalSizeRole,
        FileCountRole,
        ScanDateRole,
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return static_cast<int>(m_results.size()); }
    const QList<AnalysisResult>& results() const { return m_results; }

    void reset(QList<AnalysisResult> results);
    void prepend(const AnalysisResult& result);
    // Removes every row showing the record with this id; the others keep their order.
    void removeAll(const QUuid& id);
    // Becomes the given list (newest first) by removing and inserting rows, so that the rows
    // both lists hold stay where they are and a view keeps its place.
    void sync(const QList<AnalysisResult>& latest);

signals:
    void countChanged();

private:
    QList<AnalysisResult> m_results;
};

} // namespace tessarine
