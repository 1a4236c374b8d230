#include "storage/FolderSizesFile.h"

#include "storage/CompleteWrite.h"
#include "storage/FolderSizesCodec.h"
#include "storage/StoredFileRead.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace tessarine {

QString folderSizesPath(const QString& historyFolder, const QUuid& id) {
    return QDir(historyFolder)
        .filePath(QStringLiteral("scan_") + id.toString(QUuid::WithoutBraces).toUpper() +
                  QStringLiteral(".folders"));
}

std::optional<StorageError> saveFolderSizes(const QString& historyFolder, const QUuid& id,
                                            const FolderSizes& sizes) {
    QSaveFile file(folderSizesPath(historyFolder, id));
    if (openAndWriteCompletely(file, encodeFolderSizes(sizes)) && file.commit())
        return std::nullopt;
    return StorageError{FileSystemError::about(u"write", file.fileName(), file.errorString())};
}

std::optional<FolderSizes> loadFolderSizes(const QString& historyFolder, const QUuid& id) {
    const auto bytes = readStoredFile(folderSizesPath(historyFolder, id));
    if (const auto* content = std::get_if<QByteArray>(&bytes))
        return decodeFolderSizes(*content);
    return std::nullopt;
}

std::optional<StorageError> removeFolderSizes(const QString& historyFolder, const QUuid& id) {
    QFile file(folderSizesPath(historyFolder, id));
    if (!file.exists() || file.remove())
        return std::nullopt;
    return StorageError{FileSystemError::about(u"remove", file.fileName(), file.errorString())};
}

} // namespace tessarine
