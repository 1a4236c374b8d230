#pragma once

#include "RecordedDesktop.h"

#include <QObject>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

namespace tessarine {

class AppState;

// Fixed data for the screens' QML tests: history entries, a progress snapshot, a result, and
// real folders to scan, all put into the one application state the views read.
class ScreenFixtures : public QObject {
    Q_OBJECT

public:
    explicit ScreenFixtures(AppState& state, QObject* parent = nullptr);
    ~ScreenFixtures() override;

    // Replaces the history with this many results, "Scan <n>" newest first.
    Q_INVOKABLE void fillHistory(int count);
    // A snapshot of a scan half done and 30 seconds old, at the given path.
    Q_INVOKABLE void showProgress(const QString& currentPath);
    Q_INVOKABLE void clearProgress();
    // A finished result of the folder, with insights unless told otherwise.
    Q_INVOKABLE void showResult(const QString& rootPath, bool withInsights = true);
    // A full result for the charts and the table: 12 categories, 40 extensions, 20 depth levels
    // and 100 largest files by default, below a real folder so that its files can be revealed.
    Q_INVOKABLE void showFullResult(int categories = 12, int extensions = 40,
                                    bool withInsights = true);
    // A new folder holding one small file, so a scan of it succeeds.
    Q_INVOKABLE QString makeFolder(const QString& name);
    Q_INVOKABLE QString makeFile(const QString& name);
    Q_INVOKABLE QUrl fileUrl(const QString& path) const { return QUrl::fromLocalFile(path); }
    // What reached the desktop since the last call, oldest first.
    Q_INVOKABLE QStringList takeDesktopRequests();
    // Where a test saves what it rendered, for a person to look at.
    Q_INVOKABLE QString screenshotPath(const QString& name) const;

private:
    AppState& m_state;
    QTemporaryDir m_folders;
    RecordedDesktop m_desktop;
};

} // namespace tessarine
