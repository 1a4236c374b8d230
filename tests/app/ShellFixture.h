#pragma once

#include "WindowDrag.h"

#include <QObject>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

class QQuickItem;

namespace tessarine {

class AppState;
class PersistenceService;

// The world the shell's QML tests run in: folders worth scanning, a plain file, and a history of
// seven stored scans (the newest of "/"), all in temporary folders, with the application state
// made over that history.
class ShellFixture : public QObject {
    Q_OBJECT
    Q_PROPERTY(QUrl folderUrl READ folderUrl CONSTANT)
    Q_PROPERTY(QString folderPath READ folderPath CONSTANT)
    Q_PROPERTY(QUrl fileUrl READ fileUrl CONSTANT)
    Q_PROPERTY(QUrl largeFolderUrl READ largeFolderUrl CONSTANT)
    Q_PROPERTY(int storedScanCount READ storedScanCount CONSTANT)

public:
    explicit ShellFixture(QObject* parent = nullptr);
    ~ShellFixture() override;

    QUrl folderUrl() const;
    QString folderPath() const;
    QUrl fileUrl() const;
    // A folder of some thousands of files, for a scan that is still running a moment later.
    QUrl largeFolderUrl() const;
    static int storedScanCount() { return 7; }

    // Drags `url` from outside over the centre of `over`; true when a drop target takes it.
    Q_INVOKABLE bool dragOver(QQuickItem* over, const QUrl& url);
    // Drops the dragged URL; the action the drop ended with (Qt.IgnoreAction when refused).
    Q_INVOKABLE int drop();
    Q_INVOKABLE void leave();
    // Deletes the stored scans of the fixture's folders, so every test starts from the stored
    // seven.
    Q_INVOKABLE void forgetFolderScans();

private:
    QTemporaryDir m_home;
    QTemporaryDir m_files;
    std::unique_ptr<PersistenceService> m_store;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<testing::WindowDrag> m_drag;
};

} // namespace tessarine
