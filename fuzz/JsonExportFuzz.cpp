// The JSON writer fed with hostile results. Whatever a result holds, its history file must read
// back, and reading it back must be a fixed point: written again, it reads back the same.

#include "HostileRecords.h"

#include "model/Json.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessarine;
    FuzzedDataProvider input(data, size);
    const AnalysisResult result = fuzz::hostileResult(input, fuzz::TextKind::decodable);
    const QByteArray text = json::encode(result);
    QString error;
    const auto decoded = json::decodeResult(text, &error);
    if (!decoded) {
        std::fprintf(stderr, "written result does not read back: %s\n%s\n", qPrintable(error),
                     text.constData());
        std::abort();
    }
    const auto again = json::decodeResult(json::encode(*decoded));
    if (!again || !(*again == *decoded))
        std::abort();
    return 0;
}
