#pragma once

#include <QString>

namespace tessarine {

// The text with every control character written out as an escape ("\n", "\t", "\r", else "\xHH"),
// and each byte of a name that is not UTF-8 as U+FFFD, for lines meant for a person at a terminal.
// File names and paths come from the disk and may hold line feeds or escape sequences; printed raw,
// a crafted name could forge lines or rewrite the terminal. Data meant for programs (JSON, CSV) is
// never passed through here.
QString escapeControlCharacters(const QString& text);

} // namespace tessarine
