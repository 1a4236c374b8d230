#include "storage/ConsoleLine.h"

#include "model/TerminalText.h"

#include <cstdio>

namespace tessarine {

void printConsoleLine(const QString& line) {
    const QByteArray bytes = escapeControlCharacters(line).toLocal8Bit() + '\n';
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace tessarine
