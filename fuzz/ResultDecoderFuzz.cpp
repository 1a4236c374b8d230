// The stored-result decoder fed with any bytes, as a history folder may hold them. It must fail
// cleanly or give a result; a result it gives must write back to text that reads back the same.

#include "model/Json.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessarine;
    const auto decoded = json::decodeResult(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size)));
    if (!decoded)
        return 0;
    const auto again = json::decodeResult(json::encode(*decoded));
    if (!again || !(*again == *decoded))
        std::abort();
    return 0;
}
