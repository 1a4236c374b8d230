#pragma once

#include "model/Records.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QUuid>

namespace tessarine {

// What the history's lists, search, sort and trend need of a stored scan. Ten thousand of them
// fit in a few megabytes, where the whole results took most of a gigabyte: the whole result is
// read from its file only when a scan is opened or compared.
struct ScanSummary {
    Q_GADGET
    Q_PROPERTY(QDateTime scanDate MEMBER scanDate)
    Q_PROPERTY(QDateTime knownScanDate READ knownScanDate)
    Q_PROPERTY(QString rootPath MEMBER rootPath)
    Q_PROPERTY(QString rootName MEMBER rootName)
    Q_PROPERTY(qint64 totalSize MEMBER totalSize)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 folderCount MEMBER folderCount)
    Q_PROPERTY(qint64 maxDepth MEMBER maxDepth)
    Q_PROPERTY(double scanDuration MEMBER scanDuration)
    Q_PROPERTY(QString folderName READ folderName)
    Q_PROPERTY(bool isImported READ isImported)
    Q_PROPERTY(tessarine::ImportSource importSource READ importSourceOrNone)

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
    // Where an imported scan came from: its rows are marked, and show what the file did not say
    // as unknown.
    std::optional<ImportSource> importSource;

    static ScanSummary of(const AnalysisResult& result);
    QString folderName() const;
    QDateTime knownScanDate() const { return ImportSource::knownScanDate(scanDate, importSource); }
    bool isImported() const { return importSource.has_value(); }
    ImportSource importSourceOrNone() const { return importSource.value_or(ImportSource()); }

    bool operator==(const ScanSummary&) const = default;
};

} // namespace tessarine
