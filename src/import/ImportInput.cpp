#include "import/ImportInput.h"

#include <QFileInfo>

#include <cstdio>
#include <unistd.h>

namespace tessarine {

namespace {

ImportError unreadable(const QString& what) {
    return {ImportError::Kind::cannotRead, what};
}

// Reads `fd` to its end into `buffer`; false past streamLimit.
bool readStream(int fd, QByteArray& buffer, QString* problem) {
    constexpr qsizetype chunk = 1 << 20;
    for (;;) {
        if (buffer.size() + chunk > ImportInput::streamLimit) {
            *problem = QStringLiteral("more than %1 GB").arg(ImportInput::streamLimit >> 30);
            return false;
        }
        const qsizetype used = buffer.size();
        buffer.resize(used + chunk);
        const ssize_t got = ::read(fd, buffer.data() + used, chunk);
        if (got < 0) {
            buffer.resize(used);
            if (errno == EINTR)
                continue;
            *problem = QString::fromLocal8Bit(strerror(errno));
            return false;
        }
        buffer.resize(used + got);
        if (got == 0)
            return true;
    }
}

} // namespace

std::variant<std::unique_ptr<ImportInput>, ImportError> ImportInput::open(const QString& path) {
    std::unique_ptr<ImportInput> input(new ImportInput);
    QString problem;
    if (path == u"-") {
        input->m_sourceName = QStringLiteral("standard input");
        if (!readStream(STDIN_FILENO, input->m_buffer, &problem))
            return unreadable(QStringLiteral("standard input: ") + problem);
        input->m_bytes = input->m_buffer;
        return input;
    }
    const QFileInfo info(path);
    input->m_sourceName = info.fileName();
    if (!info.exists())
        return unreadable(path + QStringLiteral(": no such file"));
    if (info.isDir())
        return unreadable(path + QStringLiteral(": a folder, not a file"));
    input->m_file.setFileName(path);
    if (!input->m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return unreadable(path + QStringLiteral(": ") + input->m_file.errorString());
    if (info.isFile()) {
        if (input->m_file.size() == 0)
            return input;
        if (uchar* mapped = input->m_file.map(0, input->m_file.size())) {
            input->m_bytes =
                QByteArrayView(reinterpret_cast<const char*>(mapped), input->m_file.size());
            return input;
        }
    }
    // A pipe, a device, or a file that cannot be mapped: read as a stream.
    if (!readStream(input->m_file.handle(), input->m_buffer, &problem))
        return unreadable(path + QStringLiteral(": ") + problem);
    input->m_bytes = input->m_buffer;
    return input;
}

} // namespace tessarine
