#include "ScanOptionArguments.h"

namespace tessarine::cli {

namespace {

const QString hiddenOption = QStringLiteral("--hidden");
const QString oneFileSystemOption = QStringLiteral("--one-file-system");
const QString diskUsageOption = QStringLiteral("--disk-usage");

} // namespace

const QStringList& scanOptionNames() {
    static const QStringList names{hiddenOption, oneFileSystemOption, diskUsageOption};
    return names;
}

ScanOptions scanOptionsOf(const Arguments& arguments) {
    return {.includeHidden = arguments.has(hiddenOption),
            .oneFileSystem = arguments.has(oneFileSystemOption),
            .diskUsage = arguments.has(diskUsageOption)};
}

} // namespace tessarine::cli
