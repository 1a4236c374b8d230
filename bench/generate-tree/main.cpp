// generate-tree: writes the benchmark tree. The same binary always writes the same tree; bump
// kGeneratorVersion whenever the tree it writes changes, so cached trees are made again.

#include "TreePlan.h"
#include "TreeWriter.h"

#include <chrono>
#include <cstdio>
#include <exception>
#include <string>

namespace tessarine::bench {
namespace {

constexpr int kGeneratorVersion = 1;
constexpr std::uint64_t kSeed = 0x7E55A21E;

int usage() {
    std::fputs("usage: generate-tree DIR   (DIR must not exist)\n"
               "       generate-tree --version\n",
               stderr);
    return 2;
}

} // namespace
} // namespace tessarine::bench

int main(int argc, char** argv) {
    using namespace tessarine::bench;
    if (argc != 2)
        return usage();
    const std::string argument = argv[1];
    if (argument == "--version") {
        std::printf("%d\n", kGeneratorVersion);
        return 0;
    }
    if (argument.empty() || argument.front() == '-')
        return usage();

    try {
        const auto start = std::chrono::steady_clock::now();
        const TreeSummary summary = writeTree(planTree(kSeed), argument);
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        // One "key value" pair a line, easy to read back from a shell script.
        std::printf("files %lld\nfolders %lld\nlinks %lld\nhidden %lld\napparent_bytes %lld\n"
                    "seconds %.1f\n",
                    static_cast<long long>(summary.files), static_cast<long long>(summary.folders),
                    static_cast<long long>(summary.links),
                    static_cast<long long>(summary.hiddenItems),
                    static_cast<long long>(summary.apparentBytes), elapsed.count());
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "generate-tree: %s\n", error.what());
        return 1;
    }
}
