#include "HistoryFollower.h"

#include "storage/SummaryIndex.h"

#include <QFileInfo>

#include <sys/resource.h>
#include <unistd.h>

namespace tessarine {

namespace {

// Long enough for a save's temporary file and rename to arrive as one change, short enough that
// a scan saved by the command-line tool appears while the user still looks. Counted from the
// first change, not the last: a folder that keeps changing is still looked at every so often.
constexpr auto settleInterval = std::chrono::milliseconds(60);
constexpr int firstLookNiceness = 5;

} // namespace

HistoryFollower::HistoryFollower(const QString& folder, QObject* parent)
    : QObject(parent)
    , m_folder(folder)
    , m_catalog(folder) {
    m_firstLookThread.setMaxThreadCount(1);
    m_lookThread.setMaxThreadCount(1);
    m_settle.setSingleShot(true);
    m_settle.setInterval(settleInterval);
    connect(&m_settle, &QTimer::timeout, this, &HistoryFollower::startLook);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this](const QString& path) {
        if (path == m_folder && !m_settle.isActive())
            m_settle.start();
        else
            watchFolderAgain();
    });
    // The parent tells when a history folder deleted as a whole is made again: the watch on the
    // folder itself ends with it.
    m_watcher.addPath(QFileInfo(folder).path());
    m_watcher.addPath(folder);
    startLook();
}

HistoryFollower::~HistoryFollower() {
    m_firstLookThread.waitForDone();
    m_lookThread.waitForDone();
}

void HistoryFollower::noteOwnChange() {
    if (m_looking)
        m_ownChangeDuringLook = true;
}

void HistoryFollower::watchFolderAgain() {
    if (m_watcher.directories().contains(m_folder) || !QFileInfo(m_folder).isDir())
        return;
    m_watcher.addPath(m_folder);
    m_settle.start();
}

void HistoryFollower::startLook() {
    if (m_looking) {
        m_changedDuringLook = true;
        return;
    }
    m_looking = true;
    const auto reporting = std::exchange(m_reporting, HistoryCatalog::Reporting::newlyBrokenFiles);
    const bool first = reporting == HistoryCatalog::Reporting::everyBrokenFile;
    (first ? m_firstLookThread : m_lookThread)
        .start([this, first, reporting, catalog = m_catalog]() mutable {
            // The interface goes first: a first look without an index reads every stored scan on
            // every core while the window is being drawn. The helpers it starts inherit this; the
            // later looks, which read a file or two, run on a thread of their own at full speed, as
            // a thread cannot take back the priority it gave up.
            if (first) {
                ::setpriority(PRIO_PROCESS, ::gettid(), firstLookNiceness);
                catalog.takeIndex();
            }
            Look look;
            look.catalog = std::move(catalog);
            std::optional<CatalogEntries> indexUpdate;
            auto outcome = look.catalog.look(reporting);
            if (const auto* error = std::get_if<StorageError>(&outcome)) {
                look.failure = error->errorDescription();
            } else {
                look.changed = std::get<bool>(outcome);
                indexUpdate = look.catalog.indexUpdate();
                look.summaries = look.catalog.summaries();
            }
            QMetaObject::invokeMethod(
                this, [this, look = std::move(look)]() mutable { finishLook(std::move(look)); },
                Qt::QueuedConnection);
            if (indexUpdate)
                writeSummaryIndex(m_folder, *indexUpdate);
        });
}

void HistoryFollower::finishLook(Look look) {
    m_looking = false;
    if (look.failure) {
        emit lookFailed(*look.failure);
    } else {
        m_catalog = std::move(look.catalog);
        if (std::exchange(m_ownChangeDuringLook, false)) {
            // Listed before the application's own save or delete: its rows would undo it for a
            // moment. Another look sees both.
            m_rowsBehind = true;
            m_changedDuringLook = true;
        } else if (const bool behind = std::exchange(m_rowsBehind, false); look.changed || behind) {
            emit summariesChanged(look.summaries);
        }
    }
    if (std::exchange(m_changedDuringLook, false))
        startLook();
}

} // namespace tessarine
