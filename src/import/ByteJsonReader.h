#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <string>

namespace tessarine {

// Why a text could not be read, and where: the byte offset of the first byte that made no sense.
struct ByteJsonFailure {
    qint64 offset = 0;
    QString problem;
};

// A pull reader of JSON over bytes that are not necessarily UTF-8. Exports made on other machines
// write names as the file system gave them, so a string's raw bytes are handed on unchanged
// instead of being decoded (and mangled) as UTF-8; escapes are resolved to bytes, an unpaired
// \udc80-\udcff to the one raw byte it stands for. Nesting is never followed by recursion, so a
// hostile text cannot exhaust the stack. Every reading function throws ByteJsonFailure.
class ByteJsonReader {
public:
    explicit ByteJsonReader(QByteArrayView text)
        : m_begin(text.data())
        , m_at(text.data())
        , m_end(text.data() + text.size()) {}

    // The next byte that is not white space, or 0 at the end; consumes nothing else.
    char peek();
    // Consumes `byte` when it comes next (after white space).
    bool consume(char byte);
    void expect(char byte);
    // The bytes of a string, escapes resolved; `out` is reused to spare allocations.
    void readString(std::string& out);
    // A whole number; anything else, or one past 64 bits, is a failure naming `what`.
    qint64 readInteger(const char* what);
    bool readBoolean(const char* what);
    // true for null (consumed), false for anything else (left).
    bool consumeNull();
    // Passes over one value of any kind and depth.
    void skipValue();
    // Fails unless only white space is left.
    void expectEnd();

    qint64 offset() const { return m_at - m_begin; }
    [[noreturn]] void fail(const QString& problem) const;

private:
    void skipWhiteSpace();
    void skipLiteral(const char* word);
    void skipNumber();
    unsigned readHexQuad();
    void appendEscape(std::string& out);

    const char* m_begin;
    const char* m_at;
    const char* m_end;
};

} // namespace tessarine
