#include "FolderTreeController.h"

#include "AppError.h"
#include "model/WorkerThread.h"
#include "tree/FolderTreeRoot.h"

namespace tessarine {

FolderTreeController::FolderTreeController(QObject* parent)
    : QObject(parent) {}

FolderTreeController::~FolderTreeController() {
    m_currentCancel.cancel();
}

void FolderTreeController::setTree(const SharedFolderTree& tree) {
    cancel();
    m_tree = tree;
    emit treeChanged();
    setState(m_tree ? Ready : Idle);
}

void FolderTreeController::build(const QString& rootPath, const ScanOptions& options) {
    m_currentCancel.cancel();
    const BuildId build = ++m_currentBuild;
    m_currentCancel = CancelToken();
    setErrorText({});
    setState(Building);
    startWorkerThread([this, service = m_service, replies = m_replies.sender(), build, rootPath,
                       options, cancel = m_currentCancel] {
        FolderTreeOutcome outcome =
            withRootError(service->build(rootPath, options, cancel), rootPath);
        replies.post([this, build, outcome = std::move(outcome)]() mutable {
            finish(build, std::move(outcome));
        });
    });
}

void FolderTreeController::cancel() {
    m_currentCancel.cancel();
    if (m_state != Building)
        return;
    m_service->setCancelled(true);
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
