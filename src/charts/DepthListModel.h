#pragma once

#include "design/RowListModel.h"
#include "model/Records.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The depth levels of the result bound to it, shallowest first, with the figures of the depth
// chart's summary.
class DepthListModel
    : public RowListModel<DepthListModel, std::vector<std::pair<qint64, DepthStats>>> {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult result READ result WRITE setResult NOTIFY resultChanged)
    Q_PROPERTY(int count READ count NOTIFY resultChanged)
    // The value axis, from 0 to its last tick, which the longest bar reaches or nearly so.
    Q_PROPERTY(QList<double> axisTicks READ axisTicks NOTIFY resultChanged)
    Q_PROPERTY(qint64 largestFileCount READ largestFileCount NOTIFY resultChanged)
    Q_PROPERTY(qint64 totalFiles READ totalFiles NOTIFY resultChanged)
    Q_PROPERTY(qint64 peakDepth READ peakDepth NOTIFY resultChanged)

public:
    enum Role {
        DepthRole = Qt::UserRole + 1,
        LabelRole,
        FileCountRole,
        FolderCountRole,
        TotalSizeRole
    };
    Q_ENUM(Role)

    using RowListModel::RowListModel;

    const AnalysisResult& result() const { return m_result; }
    void setResult(const AnalysisResult& result);
    QList<double> axisTicks() const;
    int count() const { return rowCount(); }
    qint64 largestFileCount() const;
    qint64 totalFiles() const;
    // The level with the most files; ties go to the shallowest; 0 without levels.
    qint64 peakDepth() const;
    // The row under x when the chart's width is cut into one equal slice per level, or -1.
    Q_INVOKABLE int rowAt(double x, double width) const;

signals:
    void resultChanged();

private:
    QVariant rowData(const Row& level, int role) const override;

    AnalysisResult m_result;
};

} // namespace tessarine
