#include "StandardStreams.h"

#include "model/TerminalText.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace tessarine::cli {

namespace {

int outputDescriptor = STDOUT_FILENO;

// write() may take less than asked, or be interrupted by Ctrl-C; neither is a failure.
bool writeAll(int descriptor, QByteArrayView bytes) {
    const char* data = bytes.constData();
    qsizetype left = bytes.size();
    while (left > 0) {
        const ssize_t written = ::write(descriptor, data, size_t(left));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        data += written;
        left -= written;
    }
    return true;
}

} // namespace

void reserveStandardOutput() {
    // When standard output is closed, the copy fails and so does every later writeOutput, with
    // a message, rather than the data landing on whatever file takes descriptor 1.
    outputDescriptor = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
}

bool writeOutput(QByteArrayView bytes) {
    if (writeAll(outputDescriptor, bytes))
        return true;
    const int reason = errno;
    printError(QStringLiteral("Cannot write the output: ") +
               QString::fromLocal8Bit(std::strerror(reason)));
    return false;
}

void printError(const QString& text) {
    writeToStandardError((escapeControlCharacters(text) + u'\n').toUtf8());
}

void writeToStandardError(const QByteArray& bytes) {
    writeAll(STDERR_FILENO, bytes);
}

} // namespace tessarine::cli
