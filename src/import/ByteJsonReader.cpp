#include "import/ByteJsonReader.h"

#include <cstring>
#include <limits>
#include <vector>

namespace tessarine {

namespace {

void appendUtf8(std::string& out, char32_t code) {
    if (code < 0x80) {
        out += char(code);
    } else if (code < 0x800) {
        out += char(0xc0 | (code >> 6));
        out += char(0x80 | (code & 0x3f));
    } else if (code < 0x10000) {
        out += char(0xe0 | (code >> 12));
        out += char(0x80 | ((code >> 6) & 0x3f));
        out += char(0x80 | (code & 0x3f));
    } else {
        out += char(0xf0 | (code >> 18));
        out += char(0x80 | ((code >> 12) & 0x3f));
        out += char(0x80 | ((code >> 6) & 0x3f));
        out += char(0x80 | (code & 0x3f));
    }
}

QString shown(char byte) {
    if (byte >= 0x21 && byte < 0x7f)
        return QStringLiteral("\"%1\"").arg(QLatin1Char(byte));
    return QStringLiteral("byte 0x%1").arg(uchar(byte), 2, 16, QLatin1Char('0'));
}

} // namespace

void ByteJsonReader::fail(const QString& problem) const {
    throw ByteJsonFailure{offset(), problem};
}

void ByteJsonReader::skipWhiteSpace() {
    while (m_at != m_end && (*m_at == ' ' || *m_at == '\n' || *m_at == '\r' || *m_at == '\t'))
        ++m_at;
}

char ByteJsonReader::peek() {
    skipWhiteSpace();
    return m_at == m_end ? '\0' : *m_at;
}

bool ByteJsonReader::consume(char byte) {
    if (peek() != byte || m_at == m_end)
        return false;
    ++m_at;
    return true;
}

void ByteJsonReader::expect(char byte) {
    if (consume(byte))
        return;
    if (m_at == m_end)
        fail(QStringLiteral("the text ends too early"));
    fail(QStringLiteral("expected \"%1\" but found %2")
             .arg(QString(QLatin1Char(byte)), shown(*m_at)));
}

void ByteJsonReader::expectEnd() {
    if (peek() != '\0' || m_at != m_end)
        fail(QStringLiteral("unexpected text after the end"));
}

void ByteJsonReader::readString(std::string& out) {
    expect('"');
    out.clear();
    for (;;) {
        // Names rarely hold escapes: copy whole runs up to the next quote or backslash.
        const char* run = m_at;
        while (m_at != m_end && *m_at != '"' && *m_at != '\\') {
            if (uchar(*m_at) < 0x20)
                fail(QStringLiteral("a control character inside a string"));
            ++m_at;
        }
        out.append(run, std::size_t(m_at - run));
        if (m_at == m_end)
            fail(QStringLiteral("the text ends inside a string"));
        if (*m_at++ == '"')
            return;
        appendEscape(out);
    }
}

void ByteJsonReader::appendEscape(std::string& out) {
    if (m_at == m_end)
        fail(QStringLiteral("the text ends inside a string"));
    switch (const char kind = *m_at++) {
    case '"':
    case '\\':
    case '/':
        out += kind;
        return;
    case 'b':
        out += '\b';
        return;
    case 'f':
        out += '\f';
        return;
    case 'n':
        out += '\n';
        return;
    case 'r':
        out += '\r';
        return;
    case 't':
        out += '\t';
        return;
    case 'u':
        break;
    default:
        fail(QStringLiteral("an unknown escape in a string"));
    }
    char32_t code = readHexQuad();
    if (code >= 0xdc80 && code <= 0xdcff) {
        out += char(code - 0xdc00); // a raw byte that was not UTF-8 where the text was written
        return;
    }
    if (code >= 0xd800 && code <= 0xdbff && m_end - m_at >= 6 && m_at[0] == '\\' &&
        m_at[1] == 'u') {
        m_at += 2;
        const char32_t low = readHexQuad();
        if (low < 0xdc00 || low > 0xdfff)
            fail(QStringLiteral("an unpaired surrogate in a string"));
        code = 0x10000 + ((code - 0xd800) << 10) + (low - 0xdc00);
    } else if (code >= 0xd800 && code <= 0xdfff) {
        fail(QStringLiteral("an unpaired surrogate in a string"));
    }
    appendUtf8(out, code);
}

unsigned ByteJsonReader::readHexQuad() {
    if (m_end - m_at < 4)
        fail(QStringLiteral("the text ends inside a string"));
    unsigned value = 0;
    for (int i = 0; i < 4; ++i) {
        const char digit = *m_at++;
        value <<= 4;
        if (digit >= '0' && digit <= '9')
            value |= unsigned(digit - '0');
        else if (digit >= 'a' && digit <= 'f')
            value |= unsigned(digit - 'a' + 10);
        else if (digit >= 'A' && digit <= 'F')
            value |= unsigned(digit - 'A' + 10);
        else
            fail(QStringLiteral("a malformed \\u escape"));
    }
    return value;
}

qint64 ByteJsonReader::readInteger(const char* what) {
    skipWhiteSpace();
    const bool negative = m_at != m_end && *m_at == '-';
    if (negative)
        ++m_at;
    if (m_at == m_end || *m_at < '0' || *m_at > '9')
        fail(QStringLiteral("%1 is not a number").arg(QLatin1String(what)));
    // Accumulated as a negative number, which reaches one further than a positive one.
    qint64 value = 0;
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    while (m_at != m_end && *m_at >= '0' && *m_at <= '9') {
        const int digit = *m_at++ - '0';
        if (value < (lowest + digit) / 10)
            fail(QStringLiteral("%1 is past 64 bits").arg(QLatin1String(what)));
        value = value * 10 - digit;
    }
    if (m_at != m_end && (*m_at == '.' || *m_at == 'e' || *m_at == 'E'))
        fail(QStringLiteral("%1 is not a whole number").arg(QLatin1String(what)));
    if (negative)
        return value;
    if (value == lowest)
        fail(QStringLiteral("%1 is past 64 bits").arg(QLatin1String(what)));
    return -value;
}

bool ByteJsonReader::readBoolean(const char* what) {
    const char next = peek();
    if (next == 't') {
        skipLiteral("true");
        return true;
    }
    if (next == 'f') {
        skipLiteral("false");
        return false;
    }
    fail(QStringLiteral("%1 is not true or false").arg(QLatin1String(what)));
}

bool ByteJsonReader::consumeNull() {
    if (peek() != 'n')
        return false;
    skipLiteral("null");
    return true;
}

void ByteJsonReader::skipLiteral(const char* word) {
    const std::size_t length = std::strlen(word);
    if (std::size_t(m_end - m_at) < length || std::memcmp(m_at, word, length) != 0)
        fail(QStringLiteral("an unknown word"));
    m_at += length;
}

void ByteJsonReader::skipNumber() {
    const char* start = m_at;
    while (m_at != m_end && (std::strchr("+-.eE", *m_at) || (*m_at >= '0' && *m_at <= '9')))
        ++m_at;
    if (m_at == start)
        fail(QStringLiteral("unexpected %1").arg(shown(*m_at)));
}

void ByteJsonReader::skipValue() {
    // The closing bracket each open container waits for.
    std::vector<char> open;
    std::string scratch;
    do {
        const char next = peek();
        if (next == '[' || next == '{') {
            ++m_at;
            open.push_back(next == '[' ? ']' : '}');
            if (consume(open.back())) {
                open.pop_back();
            } else {
                if (next == '{') {
                    readString(scratch);
                    expect(':');
                }
                continue;
            }
        } else if (next == '"') {
            readString(scratch);
        } else if (next == 't' || next == 'f') {
            readBoolean("a value");
        } else if (next == 'n') {
            consumeNull();
        } else if (m_at == m_end) {
            fail(QStringLiteral("the text ends too early"));
        } else {
            skipNumber();
        }
        // After a value: the next of its container, or the end of one or more containers.
        while (!open.empty()) {
            if (consume(',')) {
                if (open.back() == '}') {
                    readString(scratch);
                    expect(':');
                }
                break;
            }
            expect(open.back());
            open.pop_back();
        }
    } while (!open.empty());
}

} // namespace tessarine
