#pragma once

#include "TreePlan.h"

#include <cstdint>
#include <string>

namespace tessarine::bench {

struct TreeSummary {
    std::int64_t files = 0;
    std::int64_t folders = 0; // below the root
    std::int64_t links = 0;
    std::int64_t hiddenItems = 0; // names starting with "."; what lies below them is not counted
    std::int64_t apparentBytes = 0;
};

// Creates the planned tree under root, which must not exist yet. File sizes are set with
// ftruncate, so even the multi-gigabyte files take no disk blocks. Throws std::runtime_error with
// the failing call, path and reason.
TreeSummary writeTree(const TreePlan& plan, const std::string& root);

} // namespace tessarine::bench
