#include "model/RecordId.h"

#include <QRandomGenerator>

#include <array>

namespace tessarine {

namespace {

// One generator per thread, seeded from the global one: the global generator takes a lock on
// every call, which threads building a folder tree side by side would contend for once a folder.
QRandomGenerator& threadGenerator() {
    thread_local QRandomGenerator generator = [] {
        std::array<quint32, 8> seed;
        QRandomGenerator::global()->fillRange(seed.data(), seed.size());
        return QRandomGenerator(seed.data(), qsizetype(seed.size()));
    }();
    return generator;
}

} // namespace

QUuid makeRecordId() {
    std::array<quint32, 4> words;
    threadGenerator().fillRange(words.data(), words.size());
    QUuid id(words[0], quint16(words[1] >> 16), quint16(words[1]), uchar(words[2] >> 24),
             uchar(words[2] >> 16), uchar(words[2] >> 8), uchar(words[2]), uchar(words[3] >> 24),
             uchar(words[3] >> 16), uchar(words[3] >> 8), uchar(words[3]));
    // Mark it as a random, RFC 4122 identity.
    id.data3 = quint16((id.data3 & 0x0FFF) | 0x4000);
    id.data4[0] = uchar((id.data4[0] & 0x3F) | 0x80);
    return id;
}

} // namespace tessarine
