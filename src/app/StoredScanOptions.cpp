#include "StoredScanOptions.h"

#include <QSettings>

namespace tessarine {

namespace {

const QString includeHiddenKey = QStringLiteral("scan/includeHidden");
const QString oneFileSystemKey = QStringLiteral("scan/oneFileSystem");
const QString diskUsageKey = QStringLiteral("scan/diskUsage");

// Named here rather than taken from the application, which sets no organisation: the file is
// ~/.config/Tessarine/Tessarine.conf for the app and any other program that reads it.
QSettings openSettings() {
    return QSettings(QStringLiteral("Tessarine"), QStringLiteral("Tessarine"));
}

} // namespace

ScanOptions loadScanOptions() {
    const QSettings settings = openSettings();
    return {.includeHidden = settings.value(includeHiddenKey, false).toBool(),
            .oneFileSystem = settings.value(oneFileSystemKey, false).toBool(),
            .diskUsage = settings.value(diskUsageKey, false).toBool()};
}

void storeScanOptions(const ScanOptions& options) {
    QSettings settings = openSettings();
    settings.setValue(includeHiddenKey, options.includeHidden);
    settings.setValue(oneFileSystemKey, options.oneFileSystem);
    settings.setValue(diskUsageKey, options.diskUsage);
}

} // namespace tessarine
