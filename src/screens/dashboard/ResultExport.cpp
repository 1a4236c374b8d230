#include "screens/dashboard/ResultExport.h"

#include "model/Json.h"
#include "model/PathBytes.h"
#include "storage/CsvExport.h"
#include "storage/ExportWriter.h"

#include <QDir>

namespace tessarine {

QUrl ResultExport::proposedFile(const AnalysisResult& result, Format format) const {
    // A new name, so it need not keep the bytes of a folder name that is not UTF-8; as shown, it
    // is one every file system takes.
    const QString name = QStringLiteral("analysis_") + pathForDisplay(result.rootName) +
                         (format == Csv ? QStringLiteral(".csv") : QStringLiteral(".json"));
    return QUrl::fromLocalFile(QDir::home().filePath(name));
}

QString ResultExport::write(const AnalysisResult& result, Format format,
                            const QUrl& destination) const {
    QByteArray bytes;
    if (format == Csv) {
        auto csv = csv::exportLargestFiles(result);
        if (const auto* error = std::get_if<StorageError>(&csv))
            return error->errorDescription();
        bytes = std::get<QByteArray>(std::move(csv));
    } else {
        bytes = json::encode(result);
    }
    // Qt's own save dialog (used where the desktop offers none) hands a name typed into it back
    // as a bare path, without the file scheme.
    const QString path = destination.isLocalFile() || !destination.scheme().isEmpty()
                             ? destination.toLocalFile()
                             : destination.path();
    const std::optional<StorageError> error = writeExport(path, bytes);
    return error ? error->errorDescription() : QString();
}

} // namespace tessarine
