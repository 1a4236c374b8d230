#include "StoredHistory.h"

#include "model/Json.h"
#include "scanner/FileSystemScanner.h"
#include "storage/PersistenceService.h"

#include <QDir>
#include <QFile>
#include <QUuid>

namespace tessarine::bench {

namespace {

// Replaces the value of one of the result's own members in its pretty-printed text: the result's
// members are the only ones indented by two spaces, and the values replaced here hold no comma.
QByteArray withMember(const QByteArray& text, const QByteArray& key, const QByteArray& value) {
    const QByteArray opening = "\n  \"" + key + "\" : ";
    const qsizetype start = text.indexOf(opening) + opening.size();
    qsizetype end = start;
    while (end < text.size() && text[end] != ',' && text[end] != '\n')
        ++end;
    return text.left(start) + value + text.mid(end);
}

QByteArray quoted(const QString& text) {
    return '"' + text.toUtf8() + '"';
}

} // namespace

bool makeStoredHistory(const QString& home, const QStringList& folders, int count) {
    const QString complete = QDir(home).filePath(QStringLiteral("complete-%1").arg(count));
    if (QFile::exists(complete))
        return true;
    QDir(home).removeRecursively();
    PersistenceService store(home);
    QList<AnalysisResult> scans;
    for (const QString& folder : folders) {
        ScanOutcome outcome = FileSystemScanner().scan(folder);
        if (auto* result = std::get_if<AnalysisResult>(&outcome))
            scans.append(std::move(*result));
    }
    if (scans.isEmpty() || store.directoryError())
        return false;
    QList<QByteArray> encoded;
    for (const AnalysisResult& scan : std::as_const(scans))
        encoded.append(json::encode(scan));
    const QDateTime first = QDateTime::currentDateTimeUtc().addSecs(-3600LL * count);
    for (int i = 0; i < count; ++i) {
        const AnalysisResult& scan = scans.at(i % scans.size());
        const QUuid id = QUuid::createUuid();
        QByteArray text = encoded.at(i % encoded.size());
        text = withMember(text, "id", quoted(id.toString(QUuid::WithoutBraces).toUpper()));
        text = withMember(text, "scanDate", quoted(json::formatDate(first.addSecs(3600LL * i))));
        text = withMember(text, "totalSize", QByteArray::number(scan.totalSize + 4096LL * i));
        QFile file(store.historyFilePath(id));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            return false;
    }
    QFile marker(complete);
    return marker.open(QIODevice::WriteOnly);
}

} // namespace tessarine::bench
