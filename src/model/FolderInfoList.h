#pragma once

#include <initializer_list>
#include <vector>

namespace tessarine {

struct FolderInfo;

// The sub-folders of a folder: a std::vector<FolderInfo> whose copying, comparing and
// destruction walk the subtree with a heap-allocated work list instead of recursing, so that a
// folder chain tens of thousands of levels deep cannot overflow the call stack.
class FolderInfoList : public std::vector<FolderInfo> {
public:
    FolderInfoList() = default;
    FolderInfoList(std::vector<FolderInfo> folders);
    FolderInfoList(std::initializer_list<FolderInfo> folders);
    FolderInfoList(const FolderInfoList& other);
    FolderInfoList(FolderInfoList&& other) noexcept = default;
    FolderInfoList& operator=(const FolderInfoList& other);
    FolderInfoList& operator=(FolderInfoList&& other) noexcept = default;
    ~FolderInfoList();

    friend bool operator==(const FolderInfoList& a, const FolderInfoList& b);
};

} // namespace tessarine
