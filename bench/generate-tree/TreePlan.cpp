#include "TreePlan.h"

#include "FileKinds.h"
#include "Random.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tessarine::bench {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kFolderCount = 40'000;
constexpr std::size_t kFileCount = 500'000;
constexpr std::size_t kHugeFileCount = 6;
constexpr std::size_t kFileLinkCount = 4'000;
constexpr std::size_t kFolderLinkCount = 400;
constexpr std::size_t kDanglingLinkCount = 40;
constexpr int kMaxDepth = 14;
constexpr std::int64_t kHugeMinimumSize = 2'000'000'000;
constexpr std::int64_t kHugeMaximumSize = 12'000'000'000;
// Dates are spread back from a fixed moment, not from now, so two runs make the same tree.
constexpr std::int64_t kNewestDate = 1'700'000'000;
constexpr std::int64_t kOldestAge = 6LL * 365 * 24 * 3600;

constexpr std::array folderWords{
    "src"sv,      "lib"sv,     "assets"sv, "images"sv,   "docs"sv,         "build"sv,
    "tests"sv,    "data"sv,    "logs"sv,   "cache"sv,    "Photos"sv,       "Music"sv,
    "Videos"sv,   "vendor"sv,  "config"sv, "reports"sv,  "node_modules"sv, "2022"sv,
    "Q1 plans"sv, "archive"sv, "drafts"sv, "releases"sv, "Fotos Ñandú"sv,  "My Stuff"sv,
};
constexpr std::array hiddenFolderWords{".git"sv, ".cache"sv, ".config"sv, ".venv"sv, ".thumbs"sv};

// How many folders of every thousand sit at depths 1, 2, ... 13: most at middle depths, a thin
// tail of deep chains. Folders stop one level above the deepest level so their files still fit.
constexpr std::array<int, kMaxDepth - 1> folderDepthPerMille{1,   30, 80, 140, 170, 160, 130,
                                                             100, 70, 50, 30,  20,  19};

int pickDepth(Random& random) {
    int ticket = static_cast<int>(random.below(1000));
    for (std::size_t index = 0; index < folderDepthPerMille.size(); ++index) {
        if (ticket < folderDepthPerMille[index])
            return static_cast<int>(index) + 1;
        ticket -= folderDepthPerMille[index];
    }
    return 1;
}

std::string childPath(const PlannedFolder& parent, std::string_view name) {
    return parent.path.empty() ? std::string(name) : parent.path + "/" + std::string(name);
}

void planFolders(Random& random, TreePlan& plan) {
    plan.folders.reserve(kFolderCount + 1);
    plan.folders.push_back({0, {}});
    std::vector<std::vector<std::size_t>> foldersByDepth(kMaxDepth, std::vector<std::size_t>{});
    foldersByDepth[0].push_back(0);
    for (std::size_t index = 1; index <= kFolderCount; ++index) {
        // Early on the wanted depth may not be reachable yet: the folder goes as deep as it can.
        int depth = pickDepth(random);
        while (foldersByDepth[depth - 1].empty())
            --depth;
        const auto& parents = foldersByDepth[depth - 1];
        const PlannedFolder& parent = plan.folders[parents[random.below(parents.size())]];
        const std::string_view word =
            random.chance(0.015) ? hiddenFolderWords[random.below(hiddenFolderWords.size())]
                                 : folderWords[random.below(folderWords.size())];
        const std::string name = std::string(word) + "-" + std::to_string(index);
        plan.folders.push_back({depth, childPath(parent, name)});
        foldersByDepth[depth].push_back(index);
    }
}

// A few folders (downloads, photo libraries, build outputs) hold far more files than the rest.
std::vector<std::size_t> fileCountsPerFolder(Random& random, const TreePlan& plan) {
    std::vector<std::size_t> slots;
    for (std::size_t index = 0; index < plan.folders.size(); ++index) {
        const std::size_t weight = random.chance(0.05) ? 30 : 1;
        slots.insert(slots.end(), weight, index);
    }
    std::vector<std::size_t> counts(plan.folders.size(), 0);
    for (std::size_t file = 0; file < kFileCount; ++file)
        ++counts[slots[random.below(slots.size())]];
    return counts;
}

const FileKind& pickKind(Random& random) {
    int ticket = static_cast<int>(random.below(totalFileKindWeight()));
    for (const FileKind& kind : fileKinds()) {
        if (ticket < kind.weight)
            return kind;
        ticket -= kind.weight;
    }
    return fileKinds().front();
}

std::string fileName(std::string_view stem, std::size_t serial, std::string_view extension,
                     bool hidden) {
    std::string name = hidden ? "." : "";
    name += stem;
    name += '_';
    name += std::to_string(serial);
    if (!extension.empty()) {
        name += '.';
        name += extension;
    }
    return name;
}

std::int64_t pickDate(Random& random) {
    return kNewestDate - random.logUniform(0, kOldestAge);
}

void planFiles(Random& random, TreePlan& plan) {
    const std::vector<std::size_t> counts = fileCountsPerFolder(random, plan);
    plan.files.reserve(kFileCount + kHugeFileCount);
    for (std::size_t folder = 0; folder < counts.size(); ++folder) {
        for (std::size_t n = 0; n < counts[folder]; ++n) {
            const FileKind& kind = pickKind(random);
            const auto stem = kind.stems[random.below(kind.stems.size())];
            const auto extension = kind.extensions[random.below(kind.extensions.size())];
            plan.files.push_back(
                {folder, fileName(stem, plan.files.size(), extension, random.chance(0.02)),
                 random.logUniform(kind.minimumSize, kind.maximumSize), pickDate(random)});
        }
    }
    const auto hugeExtensions = hugeFileExtensions();
    for (std::size_t n = 0; n < kHugeFileCount; ++n) {
        const auto extension = hugeExtensions[n % hugeExtensions.size()];
        plan.files.push_back({random.below(plan.folders.size() / 4),
                              fileName("huge", plan.files.size(), extension, false),
                              random.logUniform(kHugeMinimumSize, kHugeMaximumSize),
                              pickDate(random)});
    }
}

std::string pathFrom(const PlannedFolder& from, const std::string& target) {
    std::string relative;
    for (int level = 0; level < from.depth; ++level)
        relative += "../";
    return relative + target;
}

void planLinks(Random& random, TreePlan& plan) {
    auto linkIn = [&](std::size_t folder, std::string_view kind, const std::string& target) {
        const std::string name = std::string(kind) + "-link-" + std::to_string(plan.links.size());
        plan.links.push_back({folder, name, pathFrom(plan.folders[folder], target)});
    };
    for (std::size_t n = 0; n < kFileLinkCount; ++n) {
        const PlannedFile& file = plan.files[random.below(plan.files.size())];
        linkIn(random.below(plan.folders.size()), "file",
               childPath(plan.folders[file.folder], file.name));
    }
    for (std::size_t n = 0; n < kFolderLinkCount; ++n) {
        const PlannedFolder& folder = plan.folders[1 + random.below(plan.folders.size() - 1)];
        linkIn(random.below(plan.folders.size()), "folder", folder.path);
    }
    for (std::size_t n = 0; n < kDanglingLinkCount; ++n)
        linkIn(random.below(plan.folders.size()), "dangling", "gone-" + std::to_string(n));
}

} // namespace

TreePlan planTree(std::uint64_t seed) {
    Random random(seed);
    TreePlan plan;
    planFolders(random, plan);
    planFiles(random, plan);
    planLinks(random, plan);
    return plan;
}

} // namespace tessarine::bench
