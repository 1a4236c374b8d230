#include "model/RecordId.h"

#include <QRandomGenerator>

#include <array>

namespace tessarine {

QUuid makeRecordId() {
    std::array<quint32, 4> words;
    QRandomGenerator::global()->fillRange(words.data(), words.size());
    QUuid id(words[0], quint16(words[1] >> 16), quint16(words[1]), uchar(words[2] >> 24),
             uchar(words[2] >> 16), uchar(words[2] >> 8), uchar(words[2]), uchar(words[3] >> 24),
             uchar(words[3] >> 16), uchar(words[3] >> 8), uchar(words[3]));
    // Mark it as a random, RFC 4122 identity.
    id.data3 = quint16((id.data3 & 0x0FFF) | 0x4000);
    id.data4[0] = uchar((id.data4[0] & 0x3F) | 0x80);
    return id;
}

} // namespace tessarine
