#pragma once

#include "AppError.h"
#include "HistoryFollower.h"
#include "ScanHistoryModel.h"
#include "model/Records.h"
#include "model/ScanOptions.h"
#include "model/ScanProgress.h"

#include "model/CancelToken.h"
#include "model/WorkerReplies.h"

#include <QObject>
#include <QTimer>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

class QQmlEngine;
class QJSEngine;

namespace tessarine {

class FileSystemScanner;
struct FolderSizes;
class PersistenceService;
struct ScanError;

// The one object a scan request travels through: from the user to the scanner, and from the
// scanner's result to the dashboard and the history. It owns the view shown, the result on
// display, the history list, the progress snapshot, the error for the alert and the running scan.
// All of it lives on the user-interface thread; only FileSystemScanner::scan runs elsewhere.
class AppState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(AppView currentView READ currentView WRITE setCurrentView NOTIFY currentViewChanged)
    // The optional fields reach QML as their value (an empty one while absent) and a flag.
    Q_PROPERTY(tessarine::AnalysisResult currentResult READ currentResultOrEmpty WRITE
                   setCurrentResult NOTIFY currentResultChanged)
    Q_PROPERTY(bool hasCurrentResult READ hasCurrentResult NOTIFY currentResultChanged)
    Q_PROPERTY(tessarine::ScanHistoryModel* scanHistory READ scanHistory CONSTANT)
    Q_PROPERTY(bool showFolderPicker READ showFolderPicker WRITE setShowFolderPicker NOTIFY
                   showFolderPickerChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY isScanningChanged)
    Q_PROPERTY(
        tessarine::ScanProgress scanProgress READ scanProgressOrEmpty NOTIFY scanProgressChanged)
    Q_PROPERTY(bool hasScanProgress READ hasScanProgress NOTIFY scanProgressChanged)
    Q_PROPERTY(tessarine::AppError error READ errorOrEmpty WRITE setError NOTIFY errorChanged)
    Q_PROPERTY(bool hasError READ hasError NOTIFY errorChanged)
    // Where the history files are; the comparison reads the scans' folder sizes beside them.
    Q_PROPERTY(QString historyFolder READ historyFolder CONSTANT)
    // What new scans count (the Settings window's options), remembered between launches.
    Q_PROPERTY(tessarine::ScanOptions scanOptions READ scanOptions WRITE setScanOptions NOTIFY
                   scanOptionsChanged)

public:
    enum AppView { Landing, Scanning, Dashboard, History };
    Q_ENUM(AppView)

    // The history arrives a moment later, from a look on another thread. The store outlives this
    // state.
    explicit AppState(PersistenceService& store, QObject* parent = nullptr);
    // Cancels a running scan without waiting for it (see WorkerThread.h).
    ~AppState() override;

    // QML's AppState is the instance the application made; see setSharedInstance.
    static AppState* create(QQmlEngine* qmlEngine, QJSEngine* jsEngine);
    static void setSharedInstance(AppState* state);

    AppView currentView() const { return m_currentView; }
    void setCurrentView(AppView view);
    const std::optional<AnalysisResult>& currentResult() const { return m_currentResult; }
    // Every binding on the result reads it: an empty result made per read would draw a fresh
    // record id each time, so the stand-in is made once.
    AnalysisResult currentResultOrEmpty() const {
        static const AnalysisResult none;
        return m_currentResult ? *m_currentResult : none;
    }
    bool hasCurrentResult() const { return m_currentResult.has_value(); }
    void setCurrentResult(const AnalysisResult& result);
    ScanHistoryModel* scanHistory() { return &m_scanHistory; }
    QString historyFolder() const;
    bool showFolderPicker() const { return m_showFolderPicker; }
    void setShowFolderPicker(bool show);
    bool isScanning() const { return m_isScanning; }
    const std::optional<ScanProgress>& scanProgress() const { return m_scanProgress; }
    ScanProgress scanProgressOrEmpty() const { return m_scanProgress.value_or(ScanProgress{}); }
    bool hasScanProgress() const { return m_scanProgress.has_value(); }
    // Also the way to show a fixed snapshot, for previews of the scanning screen.
    void setScanProgress(const std::optional<ScanProgress>& progress);
    const std::optional<AppError>& error() const { return m_error; }
    AppError errorOrEmpty() const { return m_error.value_or(AppError{}); }
    bool hasError() const { return m_error.has_value(); }
    void setError(const AppError& error);
    const ScanOptions& scanOptions() const { return m_scanOptions; }
    void setScanOptions(const ScanOptions& options);

    // Begins a scan of the folder with the options of scanOptions; a scan already running is
    // cancelled and replaced. Accepts a file URL or a plain path.
    Q_INVOKABLE void startScan(const QUrl& folder);
    void startScan(const QString& folderPath);
    // Scans a result's folder again with the options it was made with, so that the new result
    // compares with it. An imported result names a folder on another machine, so the alert says
    // so instead of scanning whatever has that path here.
    Q_INVOKABLE void rescan(const tessarine::AnalysisResult& result);
    // Stops the running scan and returns to the landing view at once, without an error.
    Q_INVOKABLE void cancelScan();
    // Deletes one stored result; a result on display stays on display.
    Q_INVOKABLE void deleteScan(const tessarine::ScanSummary& scan);
    // Reads a scan made elsewhere (an ncdu export, a Tessarine result) off the interface thread,
    // stores it and shows it; a file that is neither raises the import alert.
    Q_INVOKABLE void importScan(const QUrl& file);
    // Shows a result on the dashboard.
    Q_INVOKABLE void openResult(const tessarine::AnalysisResult& result);
    // Reads a stored scan and shows it on the dashboard; one that can no longer be read raises
    // the load alert instead.
    Q_INVOKABLE void openStoredScan(const tessarine::ScanSummary& scan);
    // The whole stored result, for a comparison. One that can no longer be read raises the load
    // alert and gives what its summary holds, without categories or files.
    Q_INVOKABLE tessarine::AnalysisResult storedResult(const tessarine::ScanSummary& scan);
    Q_INVOKABLE void clearError();
    // Where the folder picker opens: beside the folder scanned last (the one on display, else the
    // newest stored), so that a neighbour is one click away; the home folder when there is none.
    Q_INVOKABLE QUrl folderPickerStart() const;

signals:
    // A scan is about to begin, a replacing one included: a scanning screen on display starts
    // over.
    void scanStarted();
    void currentViewChanged();
    void currentResultChanged();
    void showFolderPickerChanged();
    void isScanningChanged();
    void scanProgressChanged();
    void errorChanged();
    void scanOptionsChanged();

private:
    using TaskId = quint64;

    void loadHistory();
    // The load alert, raised once for a folder that stays unreadable, not at every change.
    void reportLoadFailure(const QString& description);
    std::optional<AnalysisResult> loadStoredResult(const ScanSummary& scan);
    void saveResult(const AnalysisResult& result, const FolderSizes* folderSizes);
    void setIsScanning(bool scanning);
    void beginScan(const QString& folderPath, const ScanOptions& options);
    void performScan(TaskId task, const CancelToken& cancel, const QString& folderPath,
                     const ScanOptions& options);
    void finishScan(TaskId task, const std::shared_ptr<FileSystemScanner>& scanner,
                    AnalysisResult result);
    void failScan(TaskId task, const ScanError& failure);
    bool isCancelled(TaskId task) const { return m_currentScanTask != task; }
    void copyLatestProgress();
    void stopProgressWatcher();

    PersistenceService& m_store;

    AppView m_currentView = Landing;
    std::optional<AnalysisResult> m_currentResult;
    ScanHistoryModel m_scanHistory;
    bool m_showFolderPicker = false;
    bool m_isScanning = false;
    std::optional<ScanProgress> m_scanProgress;
    std::optional<AppError> m_error;
    ScanOptions m_scanOptions;
    // The task of the current scan. A task whose id is no longer here was cancelled: its
    // outcome is dropped without touching the state.
    std::optional<TaskId> m_currentScanTask;
    TaskId m_lastTaskId = 0;
    // The cancellation of the current scan task, made with the task: a cancel that comes before
    // its worker has started still stops it.
    CancelToken m_currentScanCancel;
    std::shared_ptr<FileSystemScanner> m_currentScanner;

    // Copies the watched scanner's snapshot into scanProgress every 120 ms: progress reaches the
    // interface by polling, never once per file.
    QTimer m_progressWatcher;
    std::shared_ptr<FileSystemScanner> m_watchedScanner;
    // Each scan and import has a worker thread of its own: a cancelled scan stuck on a folder that
    // does not answer is left behind, and the next one starts at once beside it.
    WorkerReplies m_workerReplies{this};

    std::unique_ptr<HistoryFollower> m_historyFollower;
    bool m_loadFailureShown = false;
};

} // namespace tessarine
