#pragma once

#include "model/ScanSummary.h"
#include "storage/HistoryCatalog.h"

#include <QFileSystemWatcher>
#include <QList>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

namespace tessarine {

// Keeps the history's summaries in step with the history folder while the application runs:
// scans saved by the command-line tool or another instance, files deleted or broken outside the
// application. Each change is taken in by a look on a thread of its own that reads only the files
// that changed, so the interface thread only applies the rows.
class HistoryFollower : public QObject {
    Q_OBJECT

public:
    // Starts with a look that takes in the summary index and reads what it does not vouch for,
    // reporting every broken file as a start does.
    explicit HistoryFollower(const QString& folder, QObject* parent = nullptr);
    // Waits for a look still running.
    ~HistoryFollower() override;

    // The application saved or deleted a scan itself and has shown it already: a look that
    // listed the folder before that must not undo it.
    void noteOwnChange();

signals:
    // The summaries, newest first, after a look found a change.
    void summariesChanged(const QList<tessarine::ScanSummary>& summaries);
    void lookFailed(const QString& description);

private:
    struct Look {
        HistoryCatalog catalog;
        QList<ScanSummary> summaries;
        bool changed = false;
        std::optional<QString> failure;
    };

    void startLook();
    void finishLook(Look look);
    void watchFolderAgain();

    QString m_folder;
    HistoryCatalog m_catalog;
    QFileSystemWatcher m_watcher;
    // A save makes a few changes in a row (a temporary file, then its rename): they are taken in
    // with one look a moment after the first.
    QTimer m_settle;
    QThreadPool m_firstLookThread;
    QThreadPool m_lookThread;
    HistoryCatalog::Reporting m_reporting = HistoryCatalog::Reporting::everyBrokenFile;
    bool m_looking = false;
    bool m_changedDuringLook = false;
    bool m_ownChangeDuringLook = false;
    // No rows shown yet, or a look's rows were held back: the next look applies its rows even if
    // it finds no change.
    bool m_rowsBehind = true;
};

} // namespace tessarine
