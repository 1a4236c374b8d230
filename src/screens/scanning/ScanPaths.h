#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

// Path texts of the scanning screen. Paths arrive as plain "/"-separated strings from the scanner,
// so they are split here rather than through QFileInfo, which would touch the disk.
namespace tessarine {

// The pieces of the current-location row: the path split at "/", empty pieces dropped and, once
// the path is 7 or more pieces deep, only the last 6, so the row stays one line on narrow windows.
QStringList locationCrumbs(QStringView path);

// Whether an activity-log entry for this path shows a folder. The scanner reports files and
// folders alike, so a trailing "/" or a name without a dot is taken as a folder.
bool looksLikeFolder(QStringView path);

} // namespace tessarine
