#pragma once

#include "RecordedDesktop.h"
#include "WindowDrag.h"

#include "model/Records.h"

#include <QObject>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

class QQuickItem;

namespace tessarine {

class AppState;
class FolderTreeService;
class PersistenceService;

// The world the QML tests run in, as the Fixture singleton of Tessarine.Testing: the one
// application state over a history of its own (seven stored sample scans, the newest of "/"),
// folders worth scanning and a plain file in temporary folders, drags from outside the window,
// and fixed states to show (progress, results, histories).
class AppFixture : public QObject {
    Q_OBJECT
    Q_PROPERTY(QUrl folderUrl READ folderUrl CONSTANT)
    Q_PROPERTY(QString folderPath READ folderPath CONSTANT)
    Q_PROPERTY(QUrl largeFolderUrl READ largeFolderUrl CONSTANT)

public:
    explicit AppFixture(QObject* parent = nullptr);
    ~AppFixture() override;

    QUrl folderUrl() const;
    QString folderPath() const;
    // Five thousand files, for a scan that is still running a moment later.
    QUrl largeFolderUrl() const;

    // Drags `url` from outside over the centre of `over`; true when a drop target takes it.
    Q_INVOKABLE bool dragOver(QQuickItem* over, const QUrl& url);
    // Drops the dragged URL; the action the drop ended with (Qt.IgnoreAction when refused).
    Q_INVOKABLE int drop();
    Q_INVOKABLE void leave();
    // Deletes the stored scans of the fixture's folders: back to the stored seven.
    Q_INVOKABLE void forgetFolderScans();
    // Replaces the history, on disk too, with "Scan <count>" to "Scan 1", a day apart.
    Q_INVOKABLE void fillHistory(int count);
    // Saves a scan through a store of its own, as the command-line tool does.
    Q_INVOKABLE void saveElsewhere(const QString& rootPath, double hoursAgo);
    // A snapshot of a scan half done and 30 seconds old, at the given path.
    Q_INVOKABLE void showProgress(const QString& currentPath);
    Q_INVOKABLE void clearProgress();
    // 12 categories, 40 extensions, 20 depth levels and 100 largest files, the files real so that
    // they can be revealed.
    Q_INVOKABLE void showFullResult();
    // A result a dashboard must survive: nothing but empty files, a category of 0 bytes, a file
    // name of 255 characters and one with a line break.
    Q_INVOKABLE void showEmptyResult();
    // What reached the desktop (reveal, open, copy) since the last call, oldest first.
    Q_INVOKABLE QStringList takeDesktopRequests();
    // A new plain file.
    Q_INVOKABLE QString makeFile(const QString& name);
    Q_INVOKABLE QUrl urlOf(const QString& path) const { return QUrl::fromLocalFile(path); }

    // Three sub-folders, one nested two deep, and a file of its own; a path that does not exist
    // yet, and the way to make it.
    Q_INVOKABLE QString makeTree(const QString& name);
    Q_INVOKABLE QString missingFolder() const;
    Q_INVOKABLE void createFolderAt(const QString& path) const;
    // Scans root now and stores the scan with its folder sizes, as the application does.
    Q_INVOKABLE tessarine::AnalysisResult saveScan(const QString& root);
    // What a scan of root would report, without its folder tree.
    Q_INVOKABLE tessarine::AnalysisResult resultWithoutTree(const QString& root) const;
    // A result that carries its tree: three levels under "ann", files beside the sub-folders.
    Q_INVOKABLE tessarine::AnalysisResult resultWithTree() const;
    // A result whose tree is a chain of depth folders, each inside the one before.
    Q_INVOKABLE tessarine::AnalysisResult resultWithChain(int depth) const;
    // Holds the service's next build half-way until it is cancelled.
    Q_INVOKABLE void holdBuild(tessarine::FolderTreeService* service);

private:
    QTemporaryDir m_home;
    QTemporaryDir m_files;
    std::unique_ptr<PersistenceService> m_store;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<testing::WindowDrag> m_drag;
    RecordedDesktop m_desktop;
};

} // namespace tessarine
