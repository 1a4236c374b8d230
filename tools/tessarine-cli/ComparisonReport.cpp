#include "ComparisonReport.h"

#include "model/Format.h"
#include "model/Json.h"
#include "model/JsonWriter.h"
#include "model/TerminalText.h"

#include <QStringList>

#include <algorithm>

namespace tessarine::cli {

namespace {

QString signedText(qint64 change, QString (*format)(qint64)) {
    return change > 0 ? QLatin1Char('+') + format(change) : format(change);
}

QString scanLine(const QString& label, const AnalysisResult& scan) {
    return label + format::absoluteDate(scan.scanDate) + QStringLiteral("  ") +
           escapeControlCharacters(scan.rootPath) + QStringLiteral("  ") +
           scan.id.toString(QUuid::WithoutBraces).toUpper() + u'\n';
}

QString totalLine(const QString& title, qint64 before, qint64 after, QString (*format)(qint64)) {
    return title.leftJustified(12) + format(before) + QStringLiteral(" → ") + format(after) +
           QStringLiteral("  ") +
           (after == before ? format::missing() : signedText(after - before, format)) + u'\n';
}

QString folderLines(const FolderComparison& folders) {
    const QString note = folderComparisonNote(folders);
    if (!note.isEmpty())
        return note + u'\n';
    const QString unknown = unknownFolderSizeText(folders.cutoff);
    const auto sizeText = [&](const std::optional<qint64>& size) {
        return size ? format::byteCount(*size) : unknown;
    };
    QStringList changes;
    qsizetype width = 0;
    for (const FolderChange& folder : folders.changes) {
        changes.append(signedText(folder.change, format::byteCount));
        width = std::max(width, changes.last().size());
    }
    QString text = QStringLiteral("Folders that changed, largest change first:\n");
    for (std::size_t i = 0; i < folders.changes.size(); ++i) {
        const FolderChange& folder = folders.changes[i];
        text += QStringLiteral("  ") + changes[qsizetype(i)].rightJustified(width) +
                QStringLiteral("  ") + escapeControlCharacters(folder.path) +
                QStringLiteral("  (") + sizeText(folder.before) + QStringLiteral(" → ") +
                sizeText(folder.after) + QStringLiteral(")\n");
    }
    return text;
}

void writeScan(json::JsonWriter& out, const AnalysisResult& scan) {
    out.beginObject();
    out.member(u"fileCount", scan.fileCount);
    out.member(u"folderCount", scan.folderCount);
    out.member(u"id", scan.id);
    out.member(u"rootPath", scan.rootPath);
    out.member(u"scanDate", json::formatDate(scan.scanDate));
    out.member(u"totalSize", scan.totalSize);
    out.endObject();
}

QString outcomeName(FolderComparison::Outcome outcome) {
    switch (outcome) {
    case FolderComparison::Outcome::compared:
        return QStringLiteral("compared");
    case FolderComparison::Outcome::differentFolders:
        return QStringLiteral("differentFolders");
    case FolderComparison::Outcome::noFolderSizes:
        return QStringLiteral("noFolderSizes");
    }
    return QString();
}

} // namespace

QString comparisonText(const StoredComparison& comparison) {
    const AnalysisResult& before = comparison.before;
    const AnalysisResult& after = comparison.after;
    return scanLine(QStringLiteral("Before  "), before) +
           scanLine(QStringLiteral("After   "), after) + u'\n' +
           totalLine(QStringLiteral("Total Size"), before.totalSize, after.totalSize,
                     format::byteCount) +
           totalLine(QStringLiteral("Files"), before.fileCount, after.fileCount, format::count) +
           totalLine(QStringLiteral("Folders"), before.folderCount, after.folderCount,
                     format::count) +
           u'\n' + folderLines(comparison.folders);
}

QByteArray comparisonJson(const StoredComparison& comparison) {
    const AnalysisResult& before = comparison.before;
    const AnalysisResult& after = comparison.after;
    json::JsonWriter out;
    out.beginObject();
    out.key(u"after");
    writeScan(out, after);
    out.key(u"before");
    writeScan(out, before);
    out.key(u"change");
    out.beginObject();
    out.member(u"fileCount", after.fileCount - before.fileCount);
    out.member(u"folderCount", after.folderCount - before.folderCount);
    out.member(u"totalSize", after.totalSize - before.totalSize);
    out.endObject();
    out.member(u"folderCutoff", comparison.folders.cutoff);
    out.member(u"folderOutcome", outcomeName(comparison.folders.outcome));
    out.key(u"folders");
    out.beginArray();
    for (const FolderChange& folder : comparison.folders.changes) {
        out.beginObject();
        out.member(u"after", folder.after);
        out.member(u"before", folder.before);
        out.member(u"change", folder.change);
        out.member(u"path", folder.path);
        out.endObject();
    }
    out.endArray();
    out.endObject();
    return out.take() + '\n';
}

} // namespace tessarine::cli
