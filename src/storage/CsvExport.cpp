#include "storage/CsvExport.h"

#include "model/FileCategory.h"
#include "model/Json.h"

#include <QStringEncoder>
#include <QStringList>

namespace tessarine::csv {

namespace {

// Only the free-text columns can hold a separator. Lines end in a line feed alone, so a carriage
// return inside a name cannot end a line and is left bare.
QString escapedField(const QString& text) {
    if (!text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n'))
        return text;
    QString quoted = text;
    quoted.replace(u'"', QStringLiteral("\"\""));
    return u'"' + quoted + u'"';
}

QString lineFor(const FileInfo& file) {
    const QStringList fields{escapedField(file.path),
                             escapedField(file.name),
                             QString::number(file.size),
                             file.fileExtension,
                             rawValue(file.category),
                             QString::number(file.depth),
                             json::formatDate(file.modificationDate)};
    return fields.join(u',') + u'\n';
}

} // namespace

std::variant<QByteArray, StorageError> exportLargestFiles(const AnalysisResult& result) {
    QString text = QStringLiteral("Path,Name,Size (bytes),Extension,Category,Depth,Modified\n");
    for (const FileInfo& file : result.largestFiles)
        text += lineFor(file);

    QStringEncoder toUtf8(QStringEncoder::Utf8);
    QByteArray bytes = toUtf8.encode(text);
    if (toUtf8.hasError())
        return StorageError{PersistenceError{PersistenceError::Kind::encodingFailed, std::nullopt}};
    return bytes;
}

} // namespace tessarine::csv
