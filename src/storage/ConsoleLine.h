#pragma once

#include <QString>

namespace tessarine {

// Prints one line on standard output, flushed at once so that it keeps its place among whatever
// else the process prints. The store's only two messages go this way: there is no log file.
void printConsoleLine(const QString& line);

} // namespace tessarine
