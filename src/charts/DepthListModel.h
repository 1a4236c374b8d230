#pragma once

#include "model/Records.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The depth levels of the result bound to it, shallowest first, with the figures of the depth
// chart's summary.
class DepthListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult result WRITE setResult)
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

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setResult(const AnalysisResult& result);
    QList<double> axisTicks() const;
    int count() const { return int(m_levels.size()); }
    qint64 largestFileCount() const;
    qint64 totalFiles() const;
    // The level with the most files; ties go to the shallowest; 0 without levels.
    qint64 peakDepth() const;
    // The row under x when the chart's width is cut into one equal slice per level, or -1.
    Q_INVOKABLE int rowAt(double x, double width) const;

signals:
    void resultChanged();

private:
    std::vector<std::pair<qint64, DepthStats>> m_levels;
};

} // namespace tessarine
