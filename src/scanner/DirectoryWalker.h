#pragma once

#include "model/ScanOptions.h"
#include "scanner/DirectoryListing.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <chrono>
#include <functional>

namespace tessarine {

// What a running walk has discovered so far.
struct WalkProgress {
    qint64 items = 0;            // every item discovered, of any kind
    qint64 folders = 0;          // of those, directories and packages
    QByteArray recentFolderPath; // a folder listed a moment ago, in file-system bytes
    // The folder that has kept a worker waiting longest, once that is unansweredAfter or more (a
    // hung network mount); empty otherwise.
    QByteArray unansweredFolderPath;
};

// Lists a whole folder hierarchy into a DirectoryListing, in parallel across folders.
//
// Hidden entries (and all below them) are left out, package folders are listed as one entry
// without their contents, symbolic links are never followed (the root itself may be one), mount
// points are crossed: unless the scan options say otherwise. Folders are opened relative to their
// parent's descriptor, so depth is not limited by PATH_MAX; the result does not depend on thread
// scheduling: every folder's entries are kept in the order the file system listed them.
class DirectoryWalker {
public:
    // Listing a folder takes milliseconds even from a slow disk; a folder still being listed after
    // this long is worth naming to the user.
    static constexpr std::chrono::seconds unansweredAfter{3};

    struct Options {
        // Worker threads; 0 means one per hardware thread and a few more, which wait on the disk
        // while the others list and stat.
        int threadCount = 0;
        // How many parent descriptors may stay open for sub-folders still waiting to be opened;
        // past it a sub-folder is reopened component by component from the root. 0 means half of
        // the process's open-file limit (whose soft value the walker raises to the hard one).
        int maxHeldDescriptors = 0;
        ListingDetail detail;
        ScanOptions scanOptions;
        std::chrono::milliseconds progressInterval{120};
        // Called on the thread that runs walk(), about once per progressInterval.
        std::function<void(const WalkProgress&)> onProgress;
        // Polled between folders and between directory reads; when it turns true the walk stops
        // early and returns what it has, with wasCancelled() set.
        const std::atomic<bool>* cancelled = nullptr;
    };

    DirectoryWalker() = default;
    explicit DirectoryWalker(Options options)
        : m_options(std::move(options)) {}

    // For a process with an interface to keep responsive, called once at start-up: the threads
    // beyond one per core then run at a low priority (nice 10). When the disk is slow they wait on
    // it anyway; when everything is cached they would otherwise take turns on the cores with the
    // interface thread and make each of its frames wait behind them all.
    static void setExtraThreadsYield(bool yield);

    // Blocks until the whole hierarchy is listed. `rootPath` should be absolute and clean (see
    // cleanRootPath in model/PathNames.h); an unreadable or missing root gives an empty listing
    // without a root.
    DirectoryListing walk(const QString& rootPath) const;

private:
    Options m_options;
};

} // namespace tessarine
