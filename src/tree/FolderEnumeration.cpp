#include "tree/FolderEnumeration.h"

#include "scanner/DirectoryWalker.h"

#include <chrono>

namespace tessarine {

namespace {

constexpr std::chrono::milliseconds progressInterval{100};

} // namespace

DirectoryListing enumerateFolders(const QString& rootPath, const ScanOptions& scanOptions,
                                  const std::atomic<bool>& cancelled,
                                  const std::function<void(const WalkProgress&)>& onProgress) {
    auto lastSent = std::chrono::steady_clock::now();
    DirectoryWalker::Options options;
    options.cancelled = &cancelled;
    options.scanOptions = scanOptions;
    // A link counts as a file of its own size in the tree. Read here, relative to the folder's
    // open descriptor and spread over the walker's threads, it costs a fraction of a later lstat
    // by full path.
    options.detail.ownSizes = true;
    // The tree keeps only each folder's totals of its files, so the walk sums them as it goes
    // instead of listing each one.
    options.detail.summedFiles = true;
    options.progressInterval = progressInterval;
    // The walker reports about once per interval; the check makes "at most" a promise.
    options.onProgress = [&](const WalkProgress& walk) {
        const auto now = std::chrono::steady_clock::now();
        if (now - lastSent < progressInterval)
            return;
        lastSent = now;
        onProgress(walk);
    };
    return DirectoryWalker(std::move(options)).walk(rootPath);
}

} // namespace tessarine
