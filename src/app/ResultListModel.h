#pragma once

#include "design/RowListModel.h"
#include "model/Records.h"

#include <QList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// A list of stored results shown by a view. A new list is taken in by removing and inserting
// rows, keyed by id, so that the rows both lists hold stay where they are: the view keeps its
// place and its delegates instead of starting over.
class ResultListModel : public RowListModel<ResultListModel, QList<AnalysisResult>> {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        ResultRole = Qt::UserRole + 1,
        RootNameRole,
        RootPathRole,
        FolderNameRole,
        TotalSizeRole,
        FileCountRole,
        ScanDateRole, // a list's roles of its own follow this one
    };
    Q_ENUM(Role)

    using RowListModel::RowListModel;

    int count() const { return rowCount(); }
    const QList<AnalysisResult>& results() const { return m_rows; }

signals:
    void countChanged();

protected:
    void resetRows(QList<AnalysisResult> results);
    // Becomes the given list; a row whose record changed under the same id changes in place.
    // Only where the two order their common rows differently is the whole list replaced.
    void syncRows(const QList<AnalysisResult>& latest);
    void insertRow(int row, const AnalysisResult& result);
    void removeRowAt(int row);

private:
    QVariant rowData(const AnalysisResult& result, int role) const override;
};

} // namespace tessarine
