#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tessarine::bench {

// One family of files that a real home or project folder holds, with how common it is and the
// range of sizes its files usually have.
struct FileKind {
    int weight;
    std::span<const std::string_view> extensions; // "" means no extension
    std::span<const std::string_view> stems;
    std::int64_t minimumSize;
    std::int64_t maximumSize;
};

std::span<const FileKind> fileKinds();
int totalFileKindWeight();

// The few very large files (disk images, videos, virtual machines) that dominate real trees.
std::span<const std::string_view> hugeFileExtensions();

} // namespace tessarine::bench
