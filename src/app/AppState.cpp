#include "AppState.h"

#include "StoredScanOptions.h"
#include "import/ImportedFolderSizes.h"
#include "import/ScanImport.h"
#include "model/PathBytes.h"
#include "model/PathNames.h"
#include "model/WorkerThread.h"
#include "scanner/FileSystemScanner.h"
#include "scanner/PathAccess.h"
#include "storage/FolderSizesFile.h"
#include "storage/PersistenceService.h"

#include <QDir>
#include <QJSEngine>
#include <QQmlEngine>

#include <variant>

namespace tessarine {

namespace {

// The scanning screen wants a fresh snapshot often enough to look live, but reading one per file
// would flood the interface thread.
constexpr auto progressWatchInterval = std::chrono::milliseconds(120);

AppState* sharedInstance = nullptr;

// Assigns the value when it differs, and says whether it did: assigning an equal value must not
// notify the views.
template <typename T> bool assignIfChanged(T& field, const T& value) {
    if (field == value)
        return false;
    field = value;
    return true;
}

QString folderPathOf(const QUrl& folder) {
    return folder.isLocalFile() ? pathFromUrl(folder) : folder.toString(QUrl::PreferLocalFile);
}

} // namespace

AppState::AppState(PersistenceService& store, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_scanOptions(loadScanOptions()) {
    m_progressWatcher.setInterval(progressWatchInterval);
    m_progressWatcher.setTimerType(Qt::PreciseTimer);
    connect(&m_progressWatcher, &QTimer::timeout, this, &AppState::copyLatestProgress);
    loadHistory();
}

AppState::~AppState() {
    m_currentScanCancel.cancel();
    if (sharedInstance == this)
        sharedInstance = nullptr;
}

AppState* AppState::create(QQmlEngine*, QJSEngine*) {
    Q_ASSERT_X(sharedInstance, "AppState::create", "setSharedInstance must come first");
    // The application owns the state; an engine going away must not delete it.
    QJSEngine::setObjectOwnership(sharedInstance, QJSEngine::CppOwnership);
    return sharedInstance;
}

void AppState::setSharedInstance(AppState* state) {
    sharedInstance = state;
}

void AppState::setCurrentView(AppView view) {
    if (assignIfChanged(m_currentView, view))
        emit currentViewChanged();
}

// The id is the first field compared, so telling two results apart costs little.
void AppState::setCurrentResult(const AnalysisResult& result) {
    if (assignIfChanged(m_currentResult, std::optional(result)))
        emit currentResultChanged();
}

void AppState::setShowFolderPicker(bool show) {
    if (assignIfChanged(m_showFolderPicker, show))
        emit showFolderPickerChanged();
}

void AppState::setIsScanning(bool scanning) {
    if (assignIfChanged(m_isScanning, scanning))
        emit isScanningChanged();
}

void AppState::setScanProgress(const std::optional<ScanProgress>& progress) {
    if (assignIfChanged(m_scanProgress, progress))
        emit scanProgressChanged();
}

void AppState::setError(const AppError& error) {
    if (assignIfChanged(m_error, std::optional(error)))
        emit errorChanged();
}

void AppState::setScanOptions(const ScanOptions& options) {
    if (!assignIfChanged(m_scanOptions, options))
        return;
    storeScanOptions(options);
    emit scanOptionsChanged();
}

void AppState::clearError() {
    if (assignIfChanged(m_error, std::optional<AppError>()))
        emit errorChanged();
}

void AppState::loadHistory() {
    // Nothing is read here, not even the summary index: reading ten thousand stored scans without
    // one took most of a minute. The rows arrive from the follower's first look.
    if (const auto& error = m_store.directoryError()) {
        reportLoadFailure(StorageError{*error}.errorDescription());
        return;
    }
    m_historyFollower = std::make_unique<HistoryFollower>(m_store.storagePath());
    connect(m_historyFollower.get(), &HistoryFollower::summariesChanged, this,
            [this](const QList<ScanSummary>& summaries) {
                m_loadFailureShown = false;
                m_scanHistory.sync(summaries);
            });
    connect(m_historyFollower.get(), &HistoryFollower::lookFailed, this,
            &AppState::reportLoadFailure);
}

void AppState::reportLoadFailure(const QString& description) {
    if (!std::exchange(m_loadFailureShown, true))
        setError(AppError::loadFailed(description));
}

void AppState::startScan(const QUrl& folder) {
    startScan(folderPathOf(folder));
}

void AppState::startScan(const QString& folderPath) {
    beginScan(folderPath, m_scanOptions);
}

void AppState::rescan(const AnalysisResult& result) {
    if (result.importSource) {
        setError(AppError::scanFailed(
            QStringLiteral("%1 was scanned on another machine (imported from %2); import a new "
                           "scan of it instead.")
                .arg(result.rootPath, result.importSource->fileName)));
        return;
    }
    beginScan(result.rootPath, result.scanOptions);
}

void AppState::beginScan(const QString& folderPath, const ScanOptions& options) {
    // A running scan is replaced: its outcome is dropped, and its task cancelled so that it does
    // not compete with the new one for the disk, even if its worker has not started yet.
    m_currentScanCancel.cancel();
    emit scanStarted();
    setCurrentView(Scanning);
    setIsScanning(true);
    setScanProgress(std::nullopt);
    const TaskId task = ++m_lastTaskId;
    m_currentScanTask = task;
    m_currentScanCancel = CancelToken();
    performScan(task, m_currentScanCancel, folderPath, options);
}

void AppState::performScan(TaskId task, const CancelToken& cancel, const QString& folderPath,
                           const ScanOptions& options) {
    auto scanner = std::make_shared<FileSystemScanner>(options);
    m_currentScanner = scanner;
    m_watchedScanner = scanner;
    m_progressWatcher.start();
    startWorkerThread(
        [this, replies = m_workerReplies.sender(), task, cancel, scanner, folderPath] {
            ScanOutcome outcome = scanner->scan(folderPath, cancel);
            replies.post([this, task, scanner, outcome = std::move(outcome)]() mutable {
                if (auto* result = std::get_if<AnalysisResult>(&outcome))
                    finishScan(task, scanner, std::move(*result));
                else
                    failScan(task, std::get<ScanError>(outcome));
            });
        });
}

void AppState::finishScan(TaskId task, const std::shared_ptr<FileSystemScanner>& scanner,
                          AnalysisResult result) {
    if (isCancelled(task))
        return;
    stopProgressWatcher();
    // The screen keeps the last counters the scanner published, not the one before.
    if (auto last = scanner->currentProgress())
        setScanProgress(last);
    setCurrentResult(result);
    saveResult(result, scanner->folderSizes());
    setIsScanning(false);
    setCurrentView(Dashboard);
    m_currentScanner.reset();
}

void AppState::failScan(TaskId task, const ScanError& failure) {
    // A cancelled task was ended by cancelScan or a newer startScan, which set the state already.
    if (isCancelled(task))
        return;
    stopProgressWatcher();
    setError(AppError::scanFailed(failure.errorDescription()));
    setIsScanning(false);
    setCurrentView(Landing);
    m_currentScanner.reset();
}

void AppState::saveResult(const AnalysisResult& result, const FolderSizes* folderSizes) {
    if (const auto failure = m_store.save(result)) {
        setError(AppError::saveFailed(failure->errorDescription()));
        return;
    }
    if (m_historyFollower)
        m_historyFollower->noteOwnChange();
    m_scanHistory.prepend(ScanSummary::of(result));
    // The scan stays saved when its folder sizes cannot follow: it just has no folder figures.
    if (folderSizes) {
        if (const auto failure = saveFolderSizes(m_store.storagePath(), result.id, *folderSizes))
            setError(AppError::saveFailed(failure->errorDescription()));
    }
}

QString AppState::historyFolder() const {
    return m_store.storagePath();
}

void AppState::deleteScan(const ScanSummary& scan) {
    if (const auto failure = m_store.deleteResult(scan.id)) {
        setError(AppError::saveFailed(failure->errorDescription()));
        return;
    }
    if (m_historyFollower)
        m_historyFollower->noteOwnChange();
    m_scanHistory.removeAll(scan.id);
}

void AppState::importScan(const QUrl& file) {
    startWorkerThread([this, replies = m_workerReplies.sender(), path = folderPathOf(file)] {
        ImportOutcome outcome = importScanFile(path);
        // Its folder sizes come from the tree it brought, figured here, off the interface thread.
        std::optional<FolderSizes> folderSizes;
        if (const auto* result = std::get_if<AnalysisResult>(&outcome);
            result && result->folderTree)
            folderSizes = folderSizesOfTree(*result->folderTree);
        replies.post([this, outcome = std::move(outcome), folderSizes = std::move(folderSizes)] {
            if (const auto* failure = std::get_if<ImportError>(&outcome)) {
                setError(AppError::importFailed(failure->errorDescription()));
                return;
            }
            const auto& result = std::get<AnalysisResult>(outcome);
            saveResult(result, folderSizes ? &*folderSizes : nullptr);
            openResult(result);
        });
    });
}

void AppState::openResult(const AnalysisResult& result) {
    setCurrentResult(result);
    setCurrentView(Dashboard);
}

std::optional<AnalysisResult> AppState::loadStoredResult(const ScanSummary& scan) {
    auto loaded = m_store.loadResult(scan.id);
    if (const auto* failure = std::get_if<StorageError>(&loaded)) {
        setError(AppError::loadFailed(failure->errorDescription()));
        return std::nullopt;
    }
    return std::get<AnalysisResult>(std::move(loaded));
}

void AppState::openStoredScan(const ScanSummary& scan) {
    if (auto result = loadStoredResult(scan))
        openResult(*result);
}

AnalysisResult AppState::storedResult(const ScanSummary& scan) {
    if (auto result = loadStoredResult(scan))
        return std::move(*result);
    AnalysisResult figures;
    figures.id = scan.id;
    figures.scanDate = scan.scanDate;
    figures.rootPath = scan.rootPath;
    figures.rootName = scan.rootName;
    figures.totalSize = scan.totalSize;
    figures.fileCount = scan.fileCount;
    figures.folderCount = scan.folderCount;
    figures.maxDepth = scan.maxDepth;
    figures.scanDuration = scan.scanDuration;
    return figures;
}

void AppState::cancelScan() {
    m_currentScanTask.reset();
    m_currentScanCancel.cancel();
    m_currentScanner.reset();
    stopProgressWatcher();
    setIsScanning(false);
    setCurrentView(Landing);
}

QUrl AppState::folderPickerStart() const {
    const QString last = m_currentResult             ? m_currentResult->rootPath
                         : m_scanHistory.count() > 0 ? m_scanHistory.results().first().rootPath
                                                     : QString();
    if (!last.isEmpty()) {
        const QString parent = parentFolder(last);
        if (!parent.isEmpty() && isFolder(parent))
            return urlFromPath(parent);
    }
    return QUrl::fromLocalFile(QDir::homePath());
}

void AppState::copyLatestProgress() {
    if (!m_watchedScanner)
        return;
    if (auto latest = m_watchedScanner->currentProgress())
        setScanProgress(latest);
}

void AppState::stopProgressWatcher() {
    m_progressWatcher.stop();
    m_watchedScanner.reset();
}

} // namespace tessarine
