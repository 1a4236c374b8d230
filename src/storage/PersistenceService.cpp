#include "storage/PersistenceService.h"

#include "model/Json.h"
#include "storage/CompleteWrite.h"
#include "storage/ConsoleLine.h"
#include "storage/CsvExport.h"
#include "storage/FolderSizesFile.h"
#include "storage/HistoryLocation.h"
#include "storage/StoredFileRead.h"
#include "storage/SummaryIndex.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <system_error>

#include <sys/stat.h>

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
    if (auto recreated = createDirectory(m_storagePath))
        return StorageError{*recreated};
    const QString path = historyFilePath(result.id);
    const QByteArray bytes = json::encode(result);
    // QSaveFile writes beside the target and renames over it, and leaves nothing behind when it
    // fails, so a reader never meets half a history file.
    QSaveFile file(path);
    if (openAndWriteCompletely(file, bytes) && file.commit())
        return std::nullopt;
    return StorageError{FileSystemError::about(u"write", path, file.errorString())};
}

std::variant<HistoryCatalog, StorageError> PersistenceService::openCatalog() {
    if (auto error = unusableDirectory())
        return *error;
    HistoryCatalog catalog(m_storagePath);
    catalog.takeIndex();
    auto looked = catalog.look(HistoryCatalog::Reporting::everyBrokenFile);
    if (auto* error = std::get_if<StorageError>(&looked))
        return std::move(*error);
    // A folder that cannot take the index still works, only without the head start.
    if (auto update = catalog.indexUpdate())
        writeSummaryIndex(m_storagePath, *update);
    return catalog;
}

std::variant<QList<ScanSummary>, StorageError> PersistenceService::loadSummaries() {
    auto catalog = openCatalog();
    if (auto* error = std::get_if<StorageError>(&catalog))
        return std::move(*error);
    return std::get<HistoryCatalog>(catalog).summaries();
}

std::variant<AnalysisResult, StorageError> PersistenceService::loadResult(const QUuid& id) {
    if (auto error = unusableDirectory())
        return *error;
    const QString path = historyFilePath(id);
    struct stat status;
    if (::stat(QFile::encodeName(path).constData(), &status) == 0) {
        if (auto kept = m_recentResults.find(id, FileStamp::of(status)))
            return std::move(*kept);
    }
    auto read = readStoredFile(path);
    if (const auto* failure = std::get_if<StoredFileFailure>(&read)) {
        if (failure->vanished)
            return StorageError{PersistenceError{PersistenceError::Kind::fileNotFound, {}}};
        return StorageError{FileSystemError::about(u"read", path, failure->reason)};
    }
    const StoredFile& file = std::get<StoredFile>(read);
    std::optional<AnalysisResult> result = json::decodeResult(file.bytes);
    if (!result)
        return StorageError{PersistenceError{PersistenceError::Kind::decodingFailed, {}}};
    m_recentResults.keep(*result, file.stamp);
    return std::move(*result);
}

std::optional<StorageError> PersistenceService::deleteResult(const AnalysisResult& result) {
    return deleteResult(result.id);
}

std::optional<StorageError> PersistenceService::deleteResult(const QUuid& id) {
    if (auto error = unusableDirectory())
        return error;
    m_recentResults.forget(id);
    QFile file(historyFilePath(id));
    if (file.exists() && !file.remove())
        return StorageError{FileSystemError::about(u"remove", file.fileName(), file.errorString())};
    // Second: should this removal fail, the scan has left the history all the same, and a folder
    // sizes file without its history file is never read.
    return removeFolderSizes(m_storagePath, id);
}

} // namespace tessarine
