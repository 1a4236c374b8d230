#pragma once

#include "RateMeter.h"

#include <QDateTime>
#include <QString>

namespace tessarine {
struct ScanProgress;
struct FolderTreeProgress;
} // namespace tessarine

namespace tessarine::cli {

// The progress line for one kind of progress record, with the rate of its current phase. Figures
// not known yet are left out rather than shown as zero.
template <typename Progress> class ProgressText {
public:
    QString describe(const Progress& progress,
                     const QDateTime& now = QDateTime::currentDateTimeUtc());

private:
    RateMeter m_rate;
};

// "Analyzing files...  12,345 / 500,000 items  1.2 GB  45,678 items/s  3s remaining"
template <> QString ProgressText<ScanProgress>::describe(const ScanProgress&, const QDateTime&);
// "Building tree...  300 / 1,200 folders  2,345 folders/s  30s remaining"
template <>
QString ProgressText<FolderTreeProgress>::describe(const FolderTreeProgress&, const QDateTime&);

} // namespace tessarine::cli
