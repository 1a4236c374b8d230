#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>
#include <QUuid>

#include <functional>
#include <optional>
#include <vector>

namespace tessarine::json {

// A streaming, indented JSON writer. It keeps its nesting on the heap rather than on the call
// stack, so a folder tree thousands of levels deep encodes as safely as a flat one. Callers write
// object members in ascending name order; the writer only lays them out.
class JsonWriter {
public:
    // Receives the text piece by piece; false stops the passing on (a failed write).
    using Sink = std::function<bool(QByteArrayView)>;

    JsonWriter() = default;
    // Passes the text on to `sink` in pieces of about pieceBytes as it is written, instead of
    // keeping all of it: a large folder tree's text then never lies in memory whole, and the few
    // pages of one piece are reused instead of fresh ones being touched for every byte.
    explicit JsonWriter(Sink sink)
        : m_sink(std::move(sink)) {}

    static constexpr qsizetype pieceBytes = 256 * 1024;

    void beginObject();
    void endObject();
    void beginArray();
    void endArray();
    void key(QStringView name);
    // A member name of this program's own, spelled out in the code: plain ASCII with nothing to
    // escape, so it is copied as it is.
    template <std::size_t N> void key(const char16_t (&name)[N]) { plainKey(QStringView(name)); }

    void write(QStringView text);
    // A string whose text escape() has already made; a folder tree writes each path this way, as
    // its parent's escaped path and its own escaped name.
    void writeEscaped(QByteArrayView escapedText);
    void write(qint64 value);
    void write(double value);
    void write(bool value);
    // null when there is no value.
    void write(std::optional<qint64> value);
    // The canonical 8-4-4-4-12 form in upper case.
    void write(const QUuid& id);

    // A name and its value in one call.
    template <typename Value> void member(QStringView name, const Value& value) {
        key(name);
        write(value);
    }
    template <std::size_t N, typename Value>
    void member(const char16_t (&name)[N], const Value& value) {
        key(name);
        write(value);
    }

    // Appends `text` to `target` as it stands between the quotes of a JSON string.
    static void escape(QStringView text, QByteArray& target);

    // Without a sink: the whole text.
    QByteArray take();
    // With a sink: passes on the rest of the text; whether the sink took every piece.
    bool finish();

private:
    void beginValue();
    void newLine();
    // Room for `bytes` more bytes at the end of the text; advance() then counts those written.
    char* tail(qsizetype bytes);
    void advance(char* end) { m_used = end - m_out.data(); }
    void append(char c) {
        *tail(1) = c;
        ++m_used;
    }
    void append(const char* text, qsizetype length);
    void beginContainer(char open);
    void endContainer(char close);
    void appendQuoted(QStringView text);
    void plainKey(QStringView name);

    void passOn();

    Sink m_sink;
    bool m_sinkFailed = false;
    // The text not passed on yet is m_out's first m_used bytes; the rest of m_out is room to
    // write into, so that each piece of text is a plain copy and not a call into the array.
    QByteArray m_out;
    qsizetype m_used = 0;
    std::vector<bool> containerHasItems;
    bool afterKey = false;
};

} // namespace tessarine::json
