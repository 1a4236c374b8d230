#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessarine::bench {

// The whole tree decided in memory before anything touches the disk, so that the layout depends
// on the seed alone and writing it is one straight pass of system calls.
struct PlannedFolder {
    int depth;        // the root is 0
    std::string path; // relative to the root; empty for the root itself
};

struct PlannedFile {
    std::size_t folder; // index into TreePlan::folders
    std::string name;
    std::int64_t size;
    std::int64_t modifiedAt; // seconds since the epoch
};

struct PlannedLink {
    std::size_t folder;
    std::string name;
    std::string target; // relative to the link's folder, so the tree can be moved
};

struct TreePlan {
    std::vector<PlannedFolder> folders; // parents before children; [0] is the root
    std::vector<PlannedFile> files;     // grouped by folder
    std::vector<PlannedLink> links;
};

TreePlan planTree(std::uint64_t seed);

} // namespace tessarine::bench
