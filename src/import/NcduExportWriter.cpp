#include "import/NcduExportWriter.h"

#include "scanner/ListedEntry.h"

#include <QDateTime>

#include <cmath>

#include <vector>

namespace tessarine {

namespace {

constexpr qsizetype flushBytes = 64 * 1024;

class ExportText {
public:
    explicit ExportText(const std::function<bool(QByteArrayView)>& sink)
        : m_sink(sink) {}

    ExportText& operator<<(QByteArrayView text) {
        m_buffer.append(text);
        return *this;
    }
    ExportText& operator<<(qint64 number) {
        m_buffer.append(QByteArray::number(number));
        return *this;
    }
    // A JSON string of raw name bytes: only what JSON cannot hold is escaped.
    void name(QByteArrayView bytes) {
        m_buffer.append("{\"name\":\"");
        for (const char byte : bytes) {
            if (byte == '"' || byte == '\\') {
                m_buffer.append('\\').append(byte);
            } else if (uchar(byte) < 0x20) {
                m_buffer.append("\\u00");
                m_buffer.append(QByteArray::number(uchar(byte), 16).rightJustified(2, '0'));
            } else {
                m_buffer.append(byte);
            }
        }
        m_buffer.append('"');
    }
    bool flush(bool always) {
        if (!always && m_buffer.size() < flushBytes)
            return true;
        const bool taken = m_sink(m_buffer);
        m_buffer.clear();
        return taken;
    }

private:
    const std::function<bool(QByteArrayView)>& m_sink;
    QByteArray m_buffer;
};

void writeOwnSize(ExportText& text, const ListedEntry& entry) {
    if (const auto size = entry.ownSize())
        text << ",\"asize\":" << *size << ",\"dsize\":" << *size;
}

void writeEntry(ExportText& text, const ListedEntry& entry) {
    text.name(entry.name());
    switch (entry.kind()) {
    case EntryKind::file:
    case EntryKind::special:
    case EntryKind::symlink:
        writeOwnSize(text, entry);
        if (entry.kind() != EntryKind::file)
            text << ",\"notreg\":true";
        if (entry.modifiedMsecs() != ListedEntry::unknownModificationTime)
            text << ",\"mtime\":" << qint64(std::floor(double(entry.modifiedMsecs()) / 1000));
        break;
    case EntryKind::unreadable:
        text << ",\"read_error\":true";
        break;
    case EntryKind::directory:
    case EntryKind::package:
        break;
    }
    text << "}";
}

} // namespace

bool writeNcduExport(const DirectoryListing& listing, const QString& program,
                     const std::function<bool(QByteArrayView)>& sink) {
    ExportText text(sink);
    const int space = program.indexOf(u' ');
    text << "[1,2,{\"progname\":\"" << program.left(space).toUtf8() << "\",\"progver\":\""
         << program.mid(space + 1).toUtf8()
         << "\",\"timestamp\":" << QDateTime::currentSecsSinceEpoch() << "},\n[";
    text.name(listing.rootPath());
    text << "}";
    struct Frame {
        const ListedEntry* next;
        const ListedEntry* end;
    };
    std::vector<Frame> stack;
    if (const ListedDirectory* root = listing.root())
        stack.push_back({root->entries().data(), root->entries().data() + root->entries().size()});
    while (!stack.empty()) {
        Frame& top = stack.back();
        if (top.next == top.end) {
            stack.pop_back();
            text << "]";
            continue;
        }
        const ListedEntry& entry = *top.next++;
        text << ",\n";
        if (!entry.isFolder()) {
            writeEntry(text, entry);
        } else if (const ListedDirectory* contents = entry.contents();
                   contents && contents->state() != ListedDirectory::State::unreadable) {
            text << "[";
            writeEntry(text, entry);
            stack.push_back({contents->entries().data(),
                             contents->entries().data() + contents->entries().size()});
        } else {
            text << "[";
            text.name(entry.name());
            writeOwnSize(text, entry); // a package's own entry: ncdu counts it as an empty folder
            text << (contents ? ",\"read_error\":true}]" : "}]");
        }
        if (!text.flush(false))
            return false;
    }
    if (!listing.root())
        text << "]";
    text << "]\n";
    return text.flush(true);
}

} // namespace tessarine
