#include "FileKinds.h"

#include <array>
#include <numeric>

namespace tessarine::bench {

namespace {

using namespace std::string_view_literals;

constexpr std::int64_t KB = 1000;
constexpr std::int64_t MB = 1000 * KB;
constexpr std::int64_t GB = 1000 * MB;

// Stems carry spaces, parentheses, quotes and non-ASCII letters on purpose: scanners must cope.
constexpr std::array imageExtensions{"jpg"sv, "png"sv, "gif"sv, "heic"sv, "webp"sv, "svg"sv};
constexpr std::array imageStems{"IMG"sv, "photo"sv, "Screenshot 2023-05-01"sv, "scan (2)"sv};
constexpr std::array codeExtensions{"cpp"sv, "h"sv,  "py"sv, "js"sv,   "ts"sv,
                                    "go"sv,  "rs"sv, "c"sv,  "java"sv, "swift"sv};
constexpr std::array codeStems{"main"sv, "index"sv, "utils"sv, "parser"sv, "test_model"sv};
constexpr std::array dataExtensions{"json"sv, "yaml"sv, "xml"sv, "toml"sv, "csv"sv};
constexpr std::array dataStems{"config"sv, "package"sv, "schema"sv, "data"sv, "export"sv};
constexpr std::array logExtensions{"log"sv, "txt"sv};
constexpr std::array logStems{"server"sv, "debug"sv, "install"sv, "notes"sv};
constexpr std::array documentExtensions{"pdf"sv, "docx"sv, "md"sv, "xlsx"sv, "pptx"sv};
constexpr std::array documentStems{"report"sv, "invoice 2023"sv, "Résumé"sv, "draft (1)"sv,
                                   "Mom's recipes"sv};
constexpr std::array mediaExtensions{"mp4"sv, "mov"sv, "mp3"sv, "wav"sv, "mkv"sv, "flac"sv};
constexpr std::array mediaStems{"clip"sv, "song"sv, "recording"sv, "Ünterwegs"sv};
constexpr std::array archiveExtensions{"zip"sv, "gz"sv, "tar"sv, "7z"sv, "dmg"sv};
constexpr std::array archiveStems{"backup"sv, "release"sv, "bundle"sv};
constexpr std::array noExtension{""sv};
constexpr std::array plainStems{"README"sv, "LICENSE"sv, "Makefile"sv, "core"sv, "blob"sv};
constexpr std::array cacheExtensions{"cache"sv, "tmp"sv, "bak"sv, "o"sv, "pyc"sv};
constexpr std::array cacheStems{"entry"sv, "chunk"sv, "object"sv};

constexpr std::array kinds{
    FileKind{14, imageExtensions, imageStems, 20 * KB, 8 * MB},
    FileKind{26, codeExtensions, codeStems, 200, 60 * KB},
    FileKind{10, dataExtensions, dataStems, 100, 500 * KB},
    FileKind{6, logExtensions, logStems, 1 * KB, 50 * MB},
    FileKind{8, documentExtensions, documentStems, 5 * KB, 20 * MB},
    FileKind{3, mediaExtensions, mediaStems, 1 * MB, 800 * MB},
    FileKind{3, archiveExtensions, archiveStems, 50 * KB, 500 * MB},
    FileKind{18, noExtension, plainStems, 0, 64 * KB},
    FileKind{12, cacheExtensions, cacheStems, 100, 2 * MB},
};

constexpr std::array hugeExtensions{"iso"sv, "dmg"sv, "mkv"sv, "img"sv, "vmdk"sv};

} // namespace

std::span<const FileKind> fileKinds() {
    return kinds;
}

int totalFileKindWeight() {
    return std::accumulate(kinds.begin(), kinds.end(), 0,
                           [](int sum, const FileKind& kind) { return sum + kind.weight; });
}

std::span<const std::string_view> hugeFileExtensions() {
    return hugeExtensions;
}

} // namespace tessarine::bench
