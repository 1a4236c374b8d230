// The CSV writer fed with hostile largest-files lists, lone surrogates included. It must either
// refuse with encodingFailed or write valid UTF-8 that starts with the header line and ends with
// a line feed.

#include "HostileRecords.h"

#include "storage/CsvExport.h"

#include <QStringDecoder>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessarine;
    FuzzedDataProvider input(data, size);
    const auto kind = input.ConsumeBool() ? fuzz::TextKind::anyUnits : fuzz::TextKind::decodable;
    const AnalysisResult result = fuzz::hostileResult(input, kind);
    const auto exported = csv::exportLargestFiles(result);
    const auto* bytes = std::get_if<QByteArray>(&exported);
    if (!bytes) {
        if (kind == fuzz::TextKind::decodable)
            std::abort(); // every decodable text has a UTF-8 form
        return 0;
    }
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8.decode(*bytes);
    Q_UNUSED(text);
    if (utf8.hasError() || !bytes->startsWith("Path,Name,Size (bytes),") || !bytes->endsWith('\n'))
        std::abort();
    return 0;
}
