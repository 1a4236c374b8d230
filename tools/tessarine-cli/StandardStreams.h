#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace tessarine::cli {

// Keeps standard output for the command's data alone. The history store prints its notices
// (a skipped history file) on standard output; they are sent to standard error instead, so that
// `tessarine-cli history --json > all.json` always writes valid JSON. Call once, first thing.
void reserveStandardOutput();

// Writes all of bytes to the reserved standard output. On failure (a closed pipe, a full disk)
// prints why on standard error and returns false.
bool writeOutput(QByteArrayView bytes);

// One line on standard error, control characters escaped (it often carries a path).
void printError(const QString& text);

// Raw bytes on standard error, for the progress line.
void writeToStandardError(const QByteArray& bytes);

} // namespace tessarine::cli
