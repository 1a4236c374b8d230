#include "model/PathBytes.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <unistd.h>

namespace tessarine {

namespace {

constexpr char16_t escapeBase = 0xDC00;

bool isAscii(QByteArrayView bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return uchar(byte) < 0x80; });
}

bool isContinuation(uchar byte) {
    return (byte & 0xC0) == 0x80;
}

// The code point of the well-formed UTF-8 sequence at `at`, and its length; length 0 when none
// starts there (overlong forms, encoded surrogates and values past U+10FFFF are not well formed).
std::pair<char32_t, qsizetype> sequenceAt(QByteArrayView bytes, qsizetype at) {
    const uchar lead = uchar(bytes[at]);
    const qsizetype left = bytes.size() - at;
    const auto next = [&](qsizetype offset) { return uchar(bytes[at + offset]); };
    if (lead >= 0xC2 && lead <= 0xDF && left >= 2 && isContinuation(next(1)))
        return {char32_t(lead & 0x1F) << 6 | (next(1) & 0x3F), 2};
    if (lead >= 0xE0 && lead <= 0xEF && left >= 3 && isContinuation(next(1)) &&
        isContinuation(next(2))) {
        const char32_t point =
            char32_t(lead & 0x0F) << 12 | char32_t(next(1) & 0x3F) << 6 | (next(2) & 0x3F);
        if (point >= 0x800 && (point < 0xD800 || point > 0xDFFF))
            return {point, 3};
    }
    if (lead >= 0xF0 && lead <= 0xF4 && left >= 4 && isContinuation(next(1)) &&
        isContinuation(next(2)) && isContinuation(next(3))) {
        const char32_t point = char32_t(lead & 0x07) << 18 | char32_t(next(1) & 0x3F) << 12 |
                               char32_t(next(2) & 0x3F) << 6 | (next(3) & 0x3F);
        if (point >= 0x10000 && point <= 0x10FFFF)
            return {point, 4};
    }
    return {0, 0};
}

void appendUtf8(QByteArray& out, char32_t point) {
    if (point < 0x80) {
        out.append(char(point));
    } else if (point < 0x800) {
        out.append(char(0xC0 | point >> 6)).append(char(0x80 | (point & 0x3F)));
    } else if (point < 0x10000) {
        out.append(char(0xE0 | point >> 12))
            .append(char(0x80 | (point >> 6 & 0x3F)))
            .append(char(0x80 | (point & 0x3F)));
    } else {
        out.append(char(0xF0 | point >> 18))
            .append(char(0x80 | (point >> 12 & 0x3F)))
            .append(char(0x80 | (point >> 6 & 0x3F)))
            .append(char(0x80 | (point & 0x3F)));
    }
}

} // namespace

// Nearly every name is ASCII, which Qt converts fastest; the rest is decoded here because Qt's
// decoder turns every stray byte into the same U+FFFD.
QString pathFromBytes(QByteArrayView bytes) {
    if (isAscii(bytes))
        return QString::fromLatin1(bytes);
    QString text;
    text.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size();) {
        const uchar byte = uchar(bytes[at]);
        if (byte < 0x80) {
            text.append(QChar(byte));
            ++at;
            continue;
        }
        const auto [point, length] = sequenceAt(bytes, at);
        if (length == 0) {
            text.append(QChar(char16_t(escapeBase + byte)));
            ++at;
            continue;
        }
        text.append(QChar::fromUcs4(point));
        at += length;
    }
    return text;
}

// A surrogate that no other program could have made from a name, one outside U+DC80 to U+DCFF,
// goes to the disk as U+FFFD.
QByteArray pathToBytes(QStringView path) {
    const char16_t* units = path.utf16();
    if (std::all_of(units, units + path.size(), [](char16_t unit) { return unit < 0x80; }))
        return path.toLatin1();
    QByteArray bytes;
    bytes.reserve(path.size() * 3);
    for (qsizetype at = 0; at < path.size(); ++at) {
        const char16_t unit = units[at];
        if (QChar::isHighSurrogate(unit) && at + 1 < path.size() &&
            QChar::isLowSurrogate(units[at + 1])) {
            appendUtf8(bytes, QChar::surrogateToUcs4(unit, units[at + 1]));
            ++at;
        } else if (unit >= escapeBase + 0x80 && unit <= escapeBase + 0xFF) {
            bytes.append(char(unit - escapeBase));
        } else {
            appendUtf8(bytes, QChar::isSurrogate(unit) ? char32_t(QChar::ReplacementCharacter)
                                                       : char32_t(unit));
        }
    }
    return bytes;
}

QString pathForDisplay(const QString& path) {
    QString shown = path;
    const char16_t* units = QStringView(path).utf16();
    for (qsizetype at = 0; at < path.size(); ++at) {
        const bool paired = at + 1 < path.size() && QChar::isHighSurrogate(units[at]) &&
                            QChar::isLowSurrogate(units[at + 1]);
        if (paired)
            ++at;
        else if (QChar::isSurrogate(units[at]))
            shown[at] = QChar::ReplacementCharacter;
    }
    return shown;
}

QUrl urlFromPath(QStringView path) {
    return QUrl::fromEncoded("file://" + pathToBytes(path).toPercentEncoding("/"),
                             QUrl::StrictMode);
}

QString pathFromUrl(const QUrl& url) {
    if (!url.isLocalFile())
        return QString();
    return pathFromBytes(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()));
}

QStringList argumentsFromBytes(int argc, const char* const* argv) {
    QStringList arguments;
    arguments.reserve(argc);
    for (int i = 0; i < argc; ++i)
        arguments.append(pathFromBytes(argv[i]));
    return arguments;
}

QString currentFolderPath() {
    // glibc sizes the buffer itself, and falls back to walking up the ".." links where the
    // kernel refuses a path this long.
    const std::unique_ptr<char, decltype(&std::free)> path(getcwd(nullptr, 0), &std::free);
    return path ? pathFromBytes(path.get()) : QString();
}

} // namespace tessarine
