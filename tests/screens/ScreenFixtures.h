#pragma once

#include <QObject>
#include <QTemporaryDir>
#include <QUrl>

namespace tessarine {

class AppState;
class PersistenceService;

// Fixed data for the screens' QML tests: history entries, a progress snapshot, a result, and
// real folders to scan, all put into the one application state the views read.
class ScreenFixtures : public QObject {
    Q_OBJECT

public:
    ScreenFixtures(AppState& state, PersistenceService& store, QObject* parent = nullptr);

    // Replaces the history, on disk too, with this many results, "Scan <n>" newest first, a day
    // apart.
    Q_INVOKABLE void fillHistory(int count);
    // Saves a scan of the folder through a store of its own, as the command-line tool does while
    // the application is open.
    Q_INVOKABLE void saveElsewhere(const QString& rootPath, double hoursAgo);
    // A snapshot of a scan half done and 30 seconds old, at the given path.
    Q_INVOKABLE void showProgress(const QString& currentPath);
    Q_INVOKABLE void clearProgress();
    // A finished result of the folder, with insights unless told otherwise.
    Q_INVOKABLE void showResult(const QString& rootPath, bool withInsights = true);
    // A new folder holding one small file, so a scan of it succeeds.
    Q_INVOKABLE QString makeFolder(const QString& name);
    Q_INVOKABLE QString makeFile(const QString& name);
    Q_INVOKABLE QUrl fileUrl(const QString& path) const { return QUrl::fromLocalFile(path); }
    // Where a test saves what it rendered, for a person to look at.
    Q_INVOKABLE QString screenshotPath(const QString& name) const;

private:
    AppState& m_state;
    PersistenceService& m_store;
    QTemporaryDir m_folders;
};

} // namespace tessarine
