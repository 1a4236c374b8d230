#include "model/FolderInfoList.h"

#include "model/Records.h"

#include <utility>

namespace tessarine {

namespace {

// Every field of the folder except its sub-folders.
FolderInfo withoutChildren(const FolderInfo& folder) {
    return {folder.id, folder.location, folder.name, folder.totalSize, folder.fileCount,
            {},        folder.depth,    folder.color};
}

} // namespace

FolderInfoList::FolderInfoList(std::vector<FolderInfo> folders)
    : std::vector<FolderInfo>(std::move(folders)) {}

FolderInfoList::FolderInfoList(std::initializer_list<FolderInfo> folders)
    : std::vector<FolderInfo>(folders) {}

FolderInfoList::FolderInfoList(const FolderInfoList& other)
    : std::vector<FolderInfo>() {
    std::vector<std::pair<const FolderInfoList*, FolderInfoList*>> pending{{&other, this}};
    while (!pending.empty()) {
        const auto [from, to] = pending.back();
        pending.pop_back();
        // Reserved up front, so the addresses handed to the work list stay valid.
        to->reserve(from->size());
        for (const FolderInfo& folder : *from) {
            to->push_back(withoutChildren(folder));
            pending.emplace_back(&folder.childFolders, &to->back().childFolders);
        }
    }
}

FolderInfoList& FolderInfoList::operator=(const FolderInfoList& other) {
    FolderInfoList copy(other);
    swap(copy);
    return *this;
}

FolderInfoList::~FolderInfoList() {
    // Each folder gives up its sub-folders before it dies, so no destructor ever runs into a
    // non-empty list below the one being destroyed.
    std::vector<FolderInfo> orphans;
    for (FolderInfo& folder : *this) {
        for (FolderInfo& child : folder.childFolders)
            orphans.push_back(std::move(child));
    }
    while (!orphans.empty()) {
        FolderInfo folder = std::move(orphans.back());
        orphans.pop_back();
        for (FolderInfo& child : folder.childFolders)
            orphans.push_back(std::move(child));
    }
}

bool operator==(const FolderInfoList& a, const FolderInfoList& b) {
    std::vector<std::pair<const FolderInfoList*, const FolderInfoList*>> pending{{&a, &b}};
    while (!pending.empty()) {
        const auto [left, right] = pending.back();
        pending.pop_back();
        if (left->size() != right->size())
            return false;
        for (std::size_t i = 0; i < left->size(); ++i) {
            if (!(withoutChildren((*left)[i]) == withoutChildren((*right)[i])))
                return false;
            pending.emplace_back(&(*left)[i].childFolders, &(*right)[i].childFolders);
        }
    }
    return true;
}

} // namespace tessarine
