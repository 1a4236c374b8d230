#pragma once

#include <QString>

namespace tessarine {

// Prints one line on standard output, flushed at once so that it keeps its place among whatever
// else the process prints. The store's only two messages go this way: there is no log file.
// Control characters are escaped: the line carries a file name, which may hold anything.
void printConsoleLine(const QString& line);

} // namespace tessarine
