#pragma once

#include <QDateTime>
#include <QString>

// Display texts shared by the core, the command line and the interface, so that a size or a
// duration reads the same everywhere.
namespace tessarine::format {

// Decimal file-manager style: "Zero KB", "1 byte", "999 bytes", "2 KB", "1.2 MB", "1.23 GB".
// Negative values keep their minus sign; the decimal separator is the locale's.
QString byteCount(qint64 bytes);

// The integer with the locale's group separators, e.g. "1,234,567".
QString count(qint64 value);

// part / total as a percentage with one decimal, e.g. "12.5%"; "0.0%" when total < 1.
QString share(double part, double total);

// A scan duration: "250 ms", "12.3 seconds", "2m 5s".
QString duration(double seconds);

// A running time: "< 1s", "42s", "2m 5s".
QString compactDuration(double seconds);

// Medium date and short time in local time, e.g. "Nov 23, 2026 at 9:41 AM". Both date texts are
// "—" for a date that stands for "unknown" (isKnownDate), never the year 1.
QString absoluteDate(const QDateTime& date);

// Abbreviated distance from now: "5 min. ago", "2 hr. ago", "3 days ago", "in 2 hr.".
QString relativeDate(const QDateTime& date, const QDateTime& now);

// Local wall-clock time "HH:mm:ss", as used by the activity log.
QString clockTime(const QDateTime& date);

// A folder that has kept the walk waiting for a while, as on a hung network mount:
// "Waiting for photos to respond...".
QString waitingFor(const QString& folder);

// Shown in place of a value that is not known.
QString missing();

} // namespace tessarine::format
