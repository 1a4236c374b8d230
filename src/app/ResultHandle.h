#pragma once

#include "model/Records.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace tessarine {

// An optional, immutable AnalysisResult shared rather than copied, so that passing a result
// between the history, the sidebar and the dashboard costs a pointer. C++ views reach the whole
// record through get(); QML reads the properties below.
class ResultHandle {
    Q_GADGET
    QML_VALUE_TYPE(analysisResult)
    Q_PROPERTY(bool valid READ valid CONSTANT)
    Q_PROPERTY(QString id READ id CONSTANT)
    Q_PROPERTY(QString rootName READ rootName CONSTANT)
    Q_PROPERTY(QString rootPath READ rootPath CONSTANT)
    Q_PROPERTY(QString folderName READ folderName CONSTANT)
    Q_PROPERTY(QDateTime scanDate READ scanDate CONSTANT)
    Q_PROPERTY(qint64 totalSize READ totalSize CONSTANT)
    Q_PROPERTY(qint64 fileCount READ fileCount CONSTANT)
    Q_PROPERTY(qint64 folderCount READ folderCount CONSTANT)
    Q_PROPERTY(qint64 maxDepth READ maxDepth CONSTANT)
    Q_PROPERTY(double scanDuration READ scanDuration CONSTANT)
    Q_PROPERTY(QString formattedDuration READ formattedDuration CONSTANT)
    Q_PROPERTY(QVariantList categoryBreakdown READ categoryBreakdown CONSTANT)
    Q_PROPERTY(QVariantList insights READ insights CONSTANT)

public:
    ResultHandle() = default;
    explicit ResultHandle(std::shared_ptr<const AnalysisResult> result);
    explicit ResultHandle(AnalysisResult result);

    // The record, or nullptr for an empty handle.
    const AnalysisResult* get() const { return m_result.get(); }
    const std::shared_ptr<const AnalysisResult>& shared() const { return m_result; }

    bool valid() const { return m_result != nullptr; }
    QString id() const;
    QString rootName() const;
    QString rootPath() const;
    // The last path component of rootPath, or "Unknown" when rootPath is empty. The root "/",
    // which names itself elsewhere, yields the empty text after its slash.
    QString folderName() const;
    QDateTime scanDate() const;
    qint64 totalSize() const;
    qint64 fileCount() const;
    qint64 folderCount() const;
    qint64 maxDepth() const;
    double scanDuration() const;
    QString formattedDuration() const;
    // One map per category, largest totalSize first (stable): category (its index), name,
    // symbol, color (a colour name), fileCount, totalSize.
    QVariantList categoryBreakdown() const;
    // One map per insight, in order: type (its index), typeName, title, description,
    // affectedSize, affectedCount, paths.
    QVariantList insights() const;

    // Handles are equal when they show the same record: the same object, or equal contents.
    friend bool operator==(const ResultHandle& a, const ResultHandle& b);

private:
    std::shared_ptr<const AnalysisResult> m_result;
};

} // namespace tessarine
