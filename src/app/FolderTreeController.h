#pragma once

#include "model/CancelToken.h"
#include "model/Records.h"
#include "model/ScanOptions.h"
#include "model/WorkerReplies.h"
#include "tree/FolderTreeService.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace tessarine {

// The folder tree of one shown result: builds it on demand with its own FolderTreeService on a
// worker thread and keeps the finished tree. It never waits for a build: one called off (by
// Cancel, a new build or the controller going away) is cancelled and left to end on its own, which
// on a folder that does not answer may take until it answers; its outcome is then dropped. So a
// dashboard can hold one per result it shows and let it go at any time.
class FolderTreeController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    // The running build's progress, for the progress card.
    Q_PROPERTY(tessarine::FolderTreeService* service READ service CONSTANT)
    // "Failed to load: " and the build's error after a failure; empty otherwise.
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged)
    Q_PROPERTY(bool hasTree READ hasTree NOTIFY treeChanged)
    // The finished tree, for the views that draw it.
    Q_PROPERTY(tessarine::SharedFolderTree tree READ tree NOTIFY treeChanged)

public:
    enum State { Idle, Building, Ready, Failed };
    Q_ENUM(State)

    explicit FolderTreeController(QObject* parent = nullptr);
    ~FolderTreeController() override;

    State state() const { return m_state; }
    FolderTreeService* service() { return m_service.get(); }
    QString errorText() const { return m_errorText; }
    bool hasTree() const { return m_tree.has_value(); }
    const SharedFolderTree& tree() const { return m_tree; }

    // Shows a tree built before, such as the one a stored result carries; a build under way is
    // called off.
    Q_INVOKABLE void setTree(const tessarine::SharedFolderTree& tree);

    // Builds the tree of a scanned folder with the options its result was made with, replacing a
    // build under way. A root that is not a folder this process may list fails the build.
    Q_INVOKABLE void build(const QString& rootPath,
                           const tessarine::ScanOptions& options = tessarine::ScanOptions());
    // Back to idle at once; the build winds down on its own and its outcome is dropped.
    Q_INVOKABLE void cancel();

signals:
    void stateChanged();
    void errorTextChanged();
    void treeChanged();

private:
    using BuildId = quint64;

    void finish(BuildId build, FolderTreeOutcome outcome);
    void setState(State state);
    void setErrorText(const QString& text);

    // Shared with the builds, which may outlive the controller.
    std::shared_ptr<FolderTreeService> m_service = FolderTreeService::makeShared();
    State m_state = Idle;
    QString m_errorText;
    SharedFolderTree m_tree;
    // The current build; the outcome of any other is dropped.
    BuildId m_currentBuild = 0;
    CancelToken m_currentCancel;
    WorkerReplies m_replies{this};
};

} // namespace tessarine
