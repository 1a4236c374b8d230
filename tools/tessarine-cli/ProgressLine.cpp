#include "ProgressLine.h"

#include "StandardStreams.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace tessarine::cli {

namespace {

// Return to the start of the line, and erase from the cursor to its end.
constexpr char lineStart = '\r';
constexpr const char* eraseToEnd = "\033[K";
constexpr int fallbackColumns = 80;

int terminalColumns() {
    winsize size = {};
    if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return size.ws_col;
    return fallbackColumns;
}

} // namespace

ProgressLine::ProgressLine()
    : m_enabled(::isatty(STDERR_FILENO) == 1) {}

void ProgressLine::show(const QString& text) {
    if (!m_enabled || text.isEmpty())
        return;
    // The width is read on every redraw so that resizing the window takes effect at once.
    writeToStandardError(lineStart + fitToWidth(text, terminalColumns()).toUtf8() + eraseToEnd);
    m_drawn = true;
}

void ProgressLine::clear() {
    if (!m_drawn)
        return;
    writeToStandardError(QByteArray(1, lineStart) + eraseToEnd);
    m_drawn = false;
}

QString fitToWidth(const QString& text, int columns) {
    const qsizetype room = qMax(columns - 1, 0);
    if (text.size() <= room)
        return text;
    QString cut = text.left(room);
    // Never leave half of a surrogate pair at the end.
    if (!cut.isEmpty() && cut.back().isHighSurrogate())
        cut.chop(1);
    return cut;
}

} // namespace tessarine::cli
