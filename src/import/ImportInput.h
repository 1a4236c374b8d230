#pragma once

#include "import/ImportError.h"

#include <QByteArray>
#include <QFile>

#include <memory>
#include <variant>

namespace tessarine {

// The bytes of a file to import. A regular file is mapped, not copied, so an export of millions
// of items costs no more memory than the pages the reader touches; a pipe (standard input, or
// `ssh server ncdu -o-` through a named pipe) is read whole into memory, up to a bound.
class ImportInput {
public:
    // "-" stands for standard input.
    static std::variant<std::unique_ptr<ImportInput>, ImportError> open(const QString& path);

    // Largest stream read into memory: a few times the export of the largest trees seen (ncdu
    // writes some 65 bytes an item).
    static constexpr qint64 streamLimit = qint64(4) << 30;

    QByteArrayView bytes() const { return m_bytes; }
    // The name a result keeps of where it came from.
    const QString& sourceName() const { return m_sourceName; }

private:
    ImportInput() = default;

    QFile m_file;
    QByteArray m_buffer;
    QByteArrayView m_bytes;
    QString m_sourceName;
};

} // namespace tessarine
