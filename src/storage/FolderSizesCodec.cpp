#include "storage/FolderSizesCodec.h"

#include <QCryptographicHash>

#include <algorithm>
#include <limits>

namespace tessarine {

namespace {

constexpr QByteArrayView magic("TESSFLDR");
constexpr char version = 1;
constexpr QCryptographicHash::Algorithm checksumAlgorithm = QCryptographicHash::Md5;
constexpr qsizetype checksumLength = 16;
// A row takes at least four bytes: its parent distance, name length, size and count.
constexpr qsizetype smallestRow = 4;

void appendVarint(QByteArray& out, quint64 value) {
    while (value >= 0x80) {
        out.append(char((value & 0x7f) | 0x80));
        value >>= 7;
    }
    out.append(char(value));
}

// Reads the table's fields in order from the checked bytes; any read past the end, or a value
// beyond a signed 64-bit one, makes it fail for good.
class FieldReader {
public:
    explicit FieldReader(QByteArrayView bytes)
        : m_bytes(bytes) {}

    bool failed() const { return m_failed; }
    qsizetype remaining() const { return m_bytes.size() - m_position; }

    qint64 varint() {
        quint64 value = 0;
        for (int shift = 0; shift < 64 && m_position < m_bytes.size(); shift += 7) {
            const auto byte = quint8(m_bytes[m_position++]);
            value |= quint64(byte & 0x7f) << shift;
            if (!(byte & 0x80))
                return value <= quint64(std::numeric_limits<qint64>::max()) ? qint64(value)
                                                                            : fail();
        }
        return fail();
    }

    QByteArrayView bytes(qint64 length) {
        if (length > remaining())
            return fail(), QByteArrayView();
        const QByteArrayView taken = m_bytes.sliced(m_position, qsizetype(length));
        m_position += qsizetype(length);
        return taken;
    }

private:
    qint64 fail() {
        m_failed = true;
        m_position = m_bytes.size();
        return 0;
    }

    QByteArrayView m_bytes;
    qsizetype m_position = 0;
    bool m_failed = false;
};

std::optional<FolderSizes> readTable(FieldReader& fields) {
    FolderSizes sizes;
    sizes.cutoff = fields.varint();
    const qint64 rowCount = fields.varint();
    if (fields.failed() || rowCount < 1 || rowCount > fields.remaining() / smallestRow)
        return std::nullopt;
    sizes.rows.reserve(std::size_t(rowCount));
    for (qint64 index = 0; index < rowCount; ++index) {
        const qint64 distance = fields.varint();
        const QByteArrayView name = fields.bytes(fields.varint());
        const qint64 size = fields.varint();
        const qint64 fileCount = fields.varint();
        // Only the first row is the scanned folder; every other names an earlier row as parent.
        const bool parentFits = index == 0 ? distance == 0 && name.isEmpty()
                                           : distance >= 1 && distance <= index && !name.isEmpty();
        if (fields.failed() || !parentFits)
            return std::nullopt;
        sizes.add(index == 0 ? -1 : qint32(index - distance), name, size, fileCount);
    }
    if (fields.remaining() != 0)
        return std::nullopt;
    return sizes;
}

} // namespace

QByteArray encodeFolderSizes(const FolderSizes& sizes) {
    QByteArray out;
    out.reserve(64 + qsizetype(sizes.rows.size()) * 16);
    out.append(magic);
    out.append(version);
    appendVarint(out, quint64(std::max<qint64>(sizes.cutoff, 0)));
    appendVarint(out, sizes.rows.size());
    for (std::size_t index = 0; index < sizes.rows.size(); ++index) {
        const FolderSizeRow& row = sizes.rows[index];
        appendVarint(out, row.parent < 0 ? 0 : index - std::size_t(row.parent));
        appendVarint(out, quint64(row.name.size()));
        out.append(row.name);
        appendVarint(out, quint64(std::max<qint64>(row.size, 0)));
        appendVarint(out, quint64(std::max<qint64>(row.fileCount, 0)));
    }
    out.append(QCryptographicHash::hash(out, checksumAlgorithm));
    return out;
}

std::optional<FolderSizes> decodeFolderSizes(QByteArrayView bytes) {
    const qsizetype headerLength = magic.size() + 1;
    if (bytes.size() < headerLength + checksumLength || !bytes.startsWith(magic) ||
        bytes[magic.size()] != version)
        return std::nullopt;
    const QByteArrayView checked = bytes.chopped(checksumLength);
    const QByteArray checksum = QCryptographicHash::hash(checked, checksumAlgorithm);
    const QByteArrayView stored = bytes.last(checksumLength);
    if (!std::equal(stored.begin(), stored.end(), checksum.begin(), checksum.end()))
        return std::nullopt;
    FieldReader fields(checked.sliced(headerLength));
    return readTable(fields);
}

} // namespace tessarine
