// The folder sizes decoder fed with any table, as another program or a damaged disk may leave one.
// The input is sealed with the header and checksum the decoder expects, so that the fuzzer reaches
// the table itself instead of stopping at the checksum. It must fail cleanly or give a table that
// writes back to bytes that read back the same.

#include "storage/FolderSizesCodec.h"

#include <QCryptographicHash>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessarine;
    QByteArray file("TESSFLDR\x01");
    file.append(reinterpret_cast<const char*>(data), qsizetype(size));
    file.append(QCryptographicHash::hash(file, QCryptographicHash::Md5));
    const auto decoded = decodeFolderSizes(file);
    if (!decoded)
        return 0;
    const auto again = decodeFolderSizes(encodeFolderSizes(*decoded));
    if (!again || !(*again == *decoded))
        std::abort();
    return 0;
}
