// The import decoder fed with any bytes, as a file handed to `tessarine-cli import` may hold them.
// It must fail cleanly or give a result that the history can store and read back the same.

#include "import/ScanImport.h"
#include "model/Json.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessarine;
    const ImportOutcome outcome = importScan(
        QByteArrayView(reinterpret_cast<const char*>(data), qsizetype(size)), QStringLiteral("f"));
    const auto* result = std::get_if<AnalysisResult>(&outcome);
    if (!result)
        return 0;
    const auto again = json::decodeResult(json::encode(*result));
    if (!again || !(*again == *result))
        std::abort();
    return 0;
}
