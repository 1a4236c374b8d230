#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QUuid>

namespace tessarine {

struct AnalysisResult;

// What the history's lists, search, sort and trend need of a stored scan. Ten thousand of them
// fit in a few megabytes, where the whole results took most of a gigabyte: the whole result is
// read from its file only when a scan is opened or compared.
struct ScanSummary {
    Q_GADGET
    Q_PROPERTY(QDateTime scanDate MEMBER scanDate)
    Q_PROPERTY(QString rootPath MEMBER rootPath)
    Q_PROPERTY(QString rootName MEMBER rootName)
    Q_PROPERTY(qint64 totalSize MEMBER totalSize)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 folderCount MEMBER folderCount)
    Q_PROPERTY(qint64 maxDepth MEMBER maxDepth)
    Q_PROPERTY(double scanDuration MEMBER scanDuration)
    Q_PROPERTY(QString folderName READ folderName)

public:
    QUuid id;
    QDateTime scanDate;
    QString rootPath;
    QString rootName;
    qint64 totalSize = 0;
    qint64 fileCount = 0;
    qint64 folderCount = 0;
    qint64 maxDepth = 0;
    double scanDuration = 0; // seconds

    static ScanSummary of(const AnalysisResult& result);
    QString folderName() const;

    bool operator==(const ScanSummary&) const = default;
};

} // namespace tessarine
