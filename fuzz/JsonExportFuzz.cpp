// The JSON writer fed with hostile results. Whatever a result holds, its history file must read
// back, and reading it back must be a fixed point: written again, it reads back the same.

#include "HostileRecords.h"

#include "model/Json.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessarine;
    FuzzedDataProvider input(data, size);
    const AnalysisResult result = fuzz::hostileResult(input, fuzz::TextKind::decodable);
    const auto decoded = json::decodeResult(json::encode(result));
    if (!decoded)
        std::abort();
    const auto again = json::decodeResult(json::encode(*decoded));
    if (!again || !(*again == *decoded))
        std::abort();
    return 0;
}
