#include "storage/SummaryIndex.h"

#include "storage/CompleteWrite.h"
#include "storage/StoredFileRead.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QTemporaryFile>

#include <cstdio>

namespace tessarine {

namespace {

constexpr quint32 magic = 0x54534958; // "TSIX"
// Raised whenever the layout or the meaning of a field changes: an older index is then rebuilt.
constexpr quint32 formatVersion = 2;
constexpr auto streamVersion = QDataStream::Qt_6_4;
constexpr auto digest = QCryptographicHash::Sha1;

QDataStream& operator<<(QDataStream& out, const FileStamp& stamp) {
    return out << stamp.size << stamp.modifiedNs << stamp.changedNs << stamp.inode;
}

QDataStream& operator>>(QDataStream& in, FileStamp& stamp) {
    return in >> stamp.size >> stamp.modifiedNs >> stamp.changedNs >> stamp.inode;
}

QDataStream& operator<<(QDataStream& out, const std::optional<ImportSource>& source) {
    out << source.has_value();
    if (source)
        out << source->program << source->fileName << source->importDate.toMSecsSinceEpoch()
            << source->unknownFields;
    return out;
}

QDataStream& operator>>(QDataStream& in, std::optional<ImportSource>& source) {
    bool imported = false;
    in >> imported;
    source.reset();
    if (!imported)
        return in;
    qint64 importDate = 0;
    ImportSource& read = source.emplace();
    in >> read.program >> read.fileName >> importDate >> read.unknownFields;
    read.importDate = QDateTime::fromMSecsSinceEpoch(importDate, Qt::UTC);
    return in;
}

QDataStream& operator<<(QDataStream& out, const ScanSummary& summary) {
    return out << summary.id << summary.scanDate.toMSecsSinceEpoch() << summary.rootPath
               << summary.rootName << summary.totalSize << summary.fileCount << summary.folderCount
               << summary.maxDepth << summary.scanDuration << summary.importSource;
}

QDataStream& operator>>(QDataStream& in, ScanSummary& summary) {
    qint64 scanDate = 0;
    in >> summary.id >> scanDate >> summary.rootPath >> summary.rootName >> summary.totalSize >>
        summary.fileCount >> summary.folderCount >> summary.maxDepth >> summary.scanDuration >>
        summary.importSource;
    summary.scanDate = QDateTime::fromMSecsSinceEpoch(scanDate, Qt::UTC);
    return in;
}

QByteArray payloadOf(const CatalogEntries& entries) {
    QByteArray payload;
    QDataStream out(&payload, QIODevice::WriteOnly);
    out.setVersion(streamVersion);
    out << quint32(entries.size());
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        out << entry.key() << entry->stamp << entry->summary.has_value();
        if (entry->summary)
            out << *entry->summary;
        else
            out << entry->failure;
    }
    return payload;
}

CatalogEntries entriesOf(const QByteArray& payload) {
    QDataStream in(payload);
    in.setVersion(streamVersion);
    quint32 count = 0;
    in >> count;
    CatalogEntries entries;
    for (quint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        QString name;
        CatalogEntry entry;
        bool readable = false;
        in >> name >> entry.stamp >> readable;
        if (readable)
            in >> entry.summary.emplace();
        else
            in >> entry.failure;
        entries.insert(name, std::move(entry));
    }
    if (in.status() != QDataStream::Ok || !in.atEnd())
        return {};
    return entries;
}

} // namespace

QString summaryIndexPath(const QString& historyFolder) {
    return QDir(historyFolder).filePath(QStringLiteral(".summary-index"));
}

CatalogEntries readSummaryIndex(const QString& historyFolder) {
    auto stored = readStoredFile(summaryIndexPath(historyFolder));
    const auto* file = std::get_if<StoredFile>(&stored);
    if (!file)
        return {};
    QDataStream in(file->bytes);
    in.setVersion(streamVersion);
    quint32 storedMagic = 0, storedVersion = 0;
    QByteArray payload, storedDigest;
    in >> storedMagic >> storedVersion;
    if (storedMagic != magic || storedVersion != formatVersion)
        return {};
    in >> payload >> storedDigest;
    if (in.status() != QDataStream::Ok || storedDigest != QCryptographicHash::hash(payload, digest))
        return {};
    return entriesOf(payload);
}

bool writeSummaryIndex(const QString& historyFolder, const CatalogEntries& entries) {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(streamVersion);
    const QByteArray payload = payloadOf(entries);
    out << magic << formatVersion << payload << QCryptographicHash::hash(payload, digest);
    // Written beside and renamed over: another process reading it meanwhile sees the old index
    // or the new one, never half of one. Unlike a history file it is not synced to disk first
    // (QSaveFile would): that waited up to seconds on a busy disk, and an index a crash left
    // half written fails its checksum and is rebuilt.
    QTemporaryFile file(summaryIndexPath(historyFolder) + QStringLiteral("-XXXXXX"));
    if (!openAndWriteCompletely(file, bytes) ||
        std::rename(QFile::encodeName(file.fileName()).constData(),
                    QFile::encodeName(summaryIndexPath(historyFolder)).constData()) != 0)
        return false;
    file.setAutoRemove(false);
    return true;
}

} // namespace tessarine
