#include "FolderTreeController.h"

#include "AppError.h"
#include "tree/FolderTreeRoot.h"

namespace tessarine {

FolderTreeController::FolderTreeController(QObject* parent)
    : QObject(parent) {}

FolderTreeController::~FolderTreeController() {
    stopWorker();
}

void FolderTreeController::setTree(const SharedFolderTree& tree) {
    cancel();
    m_tree = tree;
    emit treeChanged();
    setState(m_tree ? Ready : Idle);
}

void FolderTreeController::build(const QString& rootPath, const ScanOptions& options) {
    stopWorker();
    const BuildId build = ++m_currentBuild;
    m_currentCancel = CancelToken();
    setErrorText({});
    setState(Building);
    m_worker.reset(QThread::create([this, build, rootPath, options, cancel = m_currentCancel] {
        const std::optional<FolderTreeError> rootError = unlistableRootError(rootPath);
        FolderTreeOutcome outcome =
            rootError ? FolderTreeOutcome(*rootError) : m_service.build(rootPath, options, cancel);
        // Dropped by Qt when the controller is gone by the time it would arrive.
        QMetaObject::invokeMethod(
            this,
            [this, build, outcome = std::move(outcome)]() mutable {
                finish(build, std::move(outcome));
            },
            Qt::QueuedConnection);
    }));
    m_worker->start();
}

void FolderTreeController::cancel() {
    m_currentCancel.cancel();
    if (m_state != Building)
        return;
    m_service.setCancelled(true);
    ++m_currentBuild;
    setState(Idle);
}

void FolderTreeController::finish(BuildId build, FolderTreeOutcome outcome) {
    if (build != m_currentBuild)
        return;
    if (auto* tree = std::get_if<FolderInfo>(&outcome)) {
        m_tree = SharedFolderTree(std::move(*tree));
        emit treeChanged();
        setState(Ready);
        return;
    }
    const FolderTreeError& error = std::get<FolderTreeError>(outcome);
    if (error.kind == FolderTreeError::Kind::cancelled) {
        setState(Idle);
        return;
    }
    setErrorText(AppError::loadFailed(error.errorDescription()).errorDescription());
    setState(Failed);
}

void FolderTreeController::stopWorker() {
    m_currentCancel.cancel();
    if (m_worker)
        m_worker->wait();
}

void FolderTreeController::setState(State state) {
    if (m_state == state)
        return;
    m_state = state;
    emit stateChanged();
}

void FolderTreeController::setErrorText(const QString& text) {
    if (m_errorText == text)
        return;
    m_errorText = text;
    emit errorTextChanged();
}

} // namespace tessarine
