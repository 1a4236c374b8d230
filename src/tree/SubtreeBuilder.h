#pragma once

#include "model/Records.h"
#include "scanner/DirectoryListing.h"
#include "tree/AssemblyProgress.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <optional>
#include <unordered_map>
#include <vector>

namespace tessarine {

// A listed folder where a build starts, with what its parent's listing says of it.
struct SubtreeStart {
    const ListedDirectory* folder = nullptr;
    QByteArray parentPath; // in file-system bytes; the root's own path for the root
    QByteArrayView name;   // empty for the root of the listing
    FolderPath location;   // its own, sharing its parent's
    qint64 depth = 0;
    FolderColor color = FolderColor::blue;
};

// What a builder finds made elsewhere for a folder it meets: the finished node of a subtree that
// another thread built (empty when it was dropped), or, for a folder above such subtrees, the
// location that their paths already share.
struct ReadyFolder {
    std::optional<FolderInfo>* node = nullptr;
    FolderPath location;
};
using ReadyFolders = std::unordered_map<const ListedDirectory*, ReadyFolder>;

// Turns the listing below one folder into its FolderInfo subtree: bottom-up sums, children
// largest first (stable, so equal sizes keep their listing order), colours by listing position
// with dropped folders counted, zero-size childless folders dropped, unlistable folders as empty
// leaves, entries the walk could not size counted as files of their own entry's size.
//
// Folders are finished in the order of a recursive build, with an explicit stack so that depth is
// unlimited. Subtrees that other threads build are taken as they are, not entered.
class SubtreeBuilder {
public:
    // `ready`, when given, holds the folders made elsewhere; the builder enters the others itself.
    SubtreeBuilder(const std::atomic<bool>& cancelled, AssemblyProgress& progress,
                   const QString& rootPath, const ReadyFolders* ready = nullptr);
    ~SubtreeBuilder();
    SubtreeBuilder(const SubtreeBuilder&) = delete;
    SubtreeBuilder& operator=(const SubtreeBuilder&) = delete;

    // The node of `start`; none when its parent drops it, or when cancelled meanwhile.
    std::optional<FolderInfo> build(SubtreeStart start);

private:
    struct Frame;

    void enter(const ListedDirectory& folder, QByteArrayView name, FolderPath location,
               qint64 depth, FolderColor color);
    void visit(Frame& frame, const ListedEntry& entry);
    const ReadyFolder* readyFolder(const ListedDirectory* folder) const;
    void adopt(Frame& parent, FolderInfo&& node);
    std::optional<FolderInfo> finish(Frame& frame);
    qint64 unlistedEntrySize(QByteArrayView name) const;
    QString folderName(const Frame& frame) const;

    const std::atomic<bool>& m_cancelled;
    AssemblyProgress& m_progress;
    const QString m_rootName;
    const ReadyFolders* const m_ready;
    QByteArray m_path; // the innermost open folder's path
    std::vector<Frame> m_stack;
};

// Whether the walk listed the folder's contents (not cancelled before it, nor unable to open it).
bool isListed(const ListedDirectory* folder);

} // namespace tessarine
