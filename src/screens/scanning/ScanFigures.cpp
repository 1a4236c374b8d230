#include "screens/scanning/ScanFigures.h"

#include "model/Format.h"
#include "screens/scanning/Throughput.h"

#include <algorithm>

namespace tessarine {

std::vector<Figure> performanceFigures(const ScanProgress& progress, double filesPerSecond,
                                       qint64 bytesPerSecond) {
    const QString averageFileSize =
        progress.filesScanned < 1
            ? format::missing()
            : format::byteCount(progress.bytesScanned / progress.filesScanned);
    const QString itemsPerFolder =
        progress.foldersScanned < 1
            ? format::missing()
            : QString::asprintf("%.1f",
                                double(progress.filesScanned) / double(progress.foldersScanned));
    return {
        {QStringLiteral("Scan Rate"), QString::asprintf("%.0f", filesPerSecond),
         QStringLiteral("files/sec"), QStringLiteral("bolt.fill"), QStringLiteral("yellow")},
        {QStringLiteral("Throughput"), formatThroughput(bytesPerSecond), QStringLiteral("/sec"),
         QStringLiteral("arrow.down.circle.fill"), QStringLiteral("green")},
        {QStringLiteral("Avg File Size"),
         averageFileSize,
         {},
         QStringLiteral("doc.fill"),
         QStringLiteral("blue")},
        {QStringLiteral("Items/Folder"), itemsPerFolder, QStringLiteral("avg"),
         QStringLiteral("folder.fill"), QStringLiteral("orange")},
    };
}

std::vector<Figure> statisticsFigures(const ScanProgress& progress, const QDateTime& now) {
    const auto box = [](const char* label, QString value, const char* color) {
        return Figure{
            QString::fromLatin1(label), std::move(value), {}, {}, QString::fromLatin1(color)};
    };
    const qint64 items = progress.filesScanned + progress.foldersScanned;
    return {
        box("Total Files", format::count(progress.filesScanned), "blue"),
        box("Total Folders", format::count(progress.foldersScanned), "orange"),
        box("Total Items", format::count(items), "purple"),
        box("Data Scanned", format::byteCount(progress.bytesScanned), "green"),
        box("Elapsed Time", progress.formattedElapsedTime(now), "cyan"),
        box("Est. Remaining",
            progress.formattedRemainingTime(now).value_or(QStringLiteral("Calculating...")),
            "gray"),
    };
}

std::optional<double> completedFraction(const ScanProgress& progress) {
    const std::optional<qint64> estimate = progress.estimatedTotalFiles;
    if (!estimate || *estimate < 1)
        return std::nullopt;
    const double done = double(progress.filesScanned + progress.foldersScanned);
    return std::min(done / double(*estimate), 1.0);
}

} // namespace tessarine
