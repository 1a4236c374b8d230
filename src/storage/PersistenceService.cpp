#include "storage/PersistenceService.h"

#include "model/Json.h"
#include "storage/CompleteWrite.h"
#include "storage/ConsoleLine.h"
#include "storage/FolderSizesFile.h"
#include "storage/HistoryLocation.h"
#include "storage/StoredFileRead.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tessarine {

namespace {

QString describe(const std::error_code& error) {
    return QString::fromLocal8Bit(error.message());
}

// QDir::mkpath only answers yes or no; the user needs to know why the history has nowhere to go.
std::optional<PersistenceError> createDirectory(const QString& path) {
    std::error_code error;
    std::filesystem::create_directories(QFileInfo(path).filesystemFilePath(), error);
    if (!error)
        return std::nullopt;
    return PersistenceError{PersistenceError::Kind::directoryNotAccessible, describe(error)};
}

// Hidden entries are skipped, and only an exact lower-case "json" suffix counts, so that
// editor backups and other people's files in the folder are never tried.
bool mayHoldResult(const QFileInfo& entry) {
    return !entry.fileName().startsWith(u'.') && entry.suffix() == u"json";
}

// The result in one history file, or why it could not be had.
std::variant<AnalysisResult, QString> readHistoryFile(const QString& path) {
    auto bytes = readStoredFile(path);
    if (auto* reason = std::get_if<QString>(&bytes))
        return std::move(*reason);
    QString decodeError;
    std::optional<AnalysisResult> result =
        json::decodeResult(std::get<QByteArray>(bytes), &decodeError);
    if (!result)
        return decodeError;
    return std::move(*result);
}

} // namespace

PersistenceService& PersistenceService::shared() {
    // Never destroyed: it may still be asked for while other statics are torn down at exit.
    static PersistenceService* const instance = new PersistenceService(historyBaseDirectory());
    return *instance;
}

PersistenceService::PersistenceService(const QString& baseDirectory)
    : m_storagePath(QDir(baseDirectory).filePath(QStringLiteral("Tessarine")))
    , m_directoryError(createDirectory(m_storagePath)) {}

QString PersistenceService::historyFilePath(const QUuid& id) const {
    const QString uuidText = id.toString(QUuid::WithoutBraces).toUpper();
    return QDir(m_storagePath)
        .filePath(QStringLiteral("scan_") + uuidText + QStringLiteral(".json"));
}

std::optional<StorageError> PersistenceService::unusableDirectory() const {
    if (m_directoryError)
        return StorageError{*m_directoryError};
    return std::nullopt;
}

std::optional<StorageError> PersistenceService::save(const AnalysisResult& result) {
    if (auto error = unusableDirectory())
        return error;
    const QString path = historyFilePath(result.id);
    const QByteArray bytes = json::encode(result);
    // QSaveFile writes beside the target and renames over it, and leaves nothing behind when it
    // fails, so a reader never meets half a history file.
    QSaveFile file(path);
    if (openAndWriteCompletely(file, bytes) && file.commit())
        return std::nullopt;
    return StorageError{FileSystemError::about(u"write", path, file.errorString())};
}

std::variant<QList<AnalysisResult>, StorageError> PersistenceService::loadAll() {
    if (auto error = unusableDirectory())
        return *error;
    const QFileInfo directory(m_storagePath);
    if (!directory.exists())
        return QList<AnalysisResult>{};

    // Listed through std::filesystem because QDir turns an unreadable folder into an empty list.
    QList<QFileInfo> candidates;
    std::error_code listingError;
    for (std::filesystem::directory_iterator entry(directory.filesystemFilePath(), listingError),
         end;
         !listingError && entry != end; entry.increment(listingError)) {
        const QFileInfo file(entry->path());
        if (mayHoldResult(file))
            candidates.append(file);
    }
    if (listingError)
        return StorageError{FileSystemError::about(u"list", m_storagePath, describe(listingError))};

    QList<AnalysisResult> results;
    for (const QFileInfo& candidate : std::as_const(candidates)) {
        auto loaded = readHistoryFile(candidate.filePath());
        if (auto* reason = std::get_if<QString>(&loaded)) {
            printConsoleLine(QStringLiteral("Failed to load ") + candidate.fileName() +
                             QStringLiteral(": ") + *reason);
            continue;
        }
        results.append(std::get<AnalysisResult>(std::move(loaded)));
    }
    std::stable_sort(
        results.begin(), results.end(),
        [](const AnalysisResult& a, const AnalysisResult& b) { return a.scanDate > b.scanDate; });
    return results;
}

std::optional<StorageError> PersistenceService::deleteResult(const AnalysisResult& result) {
    return deleteResult(result.id);
}

std::optional<StorageError> PersistenceService::deleteResult(const QUuid& id) {
    if (auto error = unusableDirectory())
        return error;
    QFile file(historyFilePath(id));
    if (file.exists() && !file.remove())
        return StorageError{FileSystemError::about(u"remove", file.fileName(), file.errorString())};
    // Second: should this removal fail, the scan has left the history all the same, and a folder
    // sizes file without its history file is never read.
    return removeFolderSizes(m_storagePath, id);
}

} // namespace tessarine
