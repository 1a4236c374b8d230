#pragma once

#include "model/ScanOptions.h"
#include "scanner/DirectoryListing.h"

#include <QString>

#include <atomic>
#include <functional>

namespace tessarine {

struct WalkProgress;

// The enumeration pass of a folder tree build: one parallel walk of the whole hierarchy (the
// scanner's walker, with its hidden-entry, package and link rules and the scan's options).
// `onProgress` is told what the walk found so far, on the calling thread, at most once every tenth
// of a second. A cancelled walk returns early with wasCancelled() set.
DirectoryListing enumerateFolders(const QString& rootPath, const ScanOptions& scanOptions,
                                  const std::atomic<bool>& cancelled,
                                  const std::function<void(const WalkProgress&)>& onProgress);

} // namespace tessarine
