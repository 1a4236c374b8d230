#include "model/JsonWriter.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace tessarine::json {

namespace {

// Laid out as Foundation's pretty-printing JSONEncoder lays out its output, so that a history file
// written here and one written on a Mac look alike: two spaces per level, " : " after a name.
constexpr int indentWidth = 2;

// Foundation also escapes '/' unless told not to; any reader takes both forms.
const char* escapeFor(char c) {
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '/':
        return "\\/";
    case '\b':
        return "\\b";
    case '\f':
        return "\\f";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return nullptr;
    }
}

} // namespace

// Every item starts on a new line, so this is where a full piece is passed on.
void JsonWriter::newLine() {
    if (m_sink && out.size() >= pieceBytes)
        passOn();
    out.append('\n');
    out.append(qsizetype(containerHasItems.size()) * indentWidth, ' ');
}

// Places the separator and line break owed before the next item of the current container.
void JsonWriter::beginValue() {
    if (afterKey) {
        afterKey = false;
        return;
    }
    if (containerHasItems.empty())
        return;
    if (containerHasItems.back())
        out.append(',');
    containerHasItems.back() = true;
    newLine();
}

void JsonWriter::beginContainer(char open) {
    beginValue();
    out.append(open);
    containerHasItems.push_back(false);
}

void JsonWriter::endContainer(char close) {
    // An empty container still spans lines, with one blank line inside, as the platform's
    // encoder writes it.
    if (!containerHasItems.back())
        out.append('\n');
    containerHasItems.pop_back();
    newLine();
    out.append(close);
}

void JsonWriter::beginObject() {
    beginContainer('{');
}

void JsonWriter::endObject() {
    endContainer('}');
}

void JsonWriter::beginArray() {
    beginContainer('[');
}

void JsonWriter::endArray() {
    endContainer(']');
}

void JsonWriter::key(QStringView name) {
    beginValue();
    appendQuoted(name);
    out.append(" : ");
    afterKey = true;
}

void JsonWriter::appendQuoted(QStringView text) {
    out.append('"');
    // Member names, folder names and paths are nearly always ASCII, whose UTF-16 units are
    // their UTF-8 bytes: those are escaped straight from the string, without a UTF-8 copy of
    // it. The rest, from the first other unit on (never inside a surrogate pair), is converted
    // first.
    const auto firstOther =
        std::find_if(text.begin(), text.end(), [](QChar unit) { return unit.unicode() >= 0x80; });
    const auto asciiLength = qsizetype(firstOther - text.begin());
    appendEscaped(text.utf16(), text.utf16() + asciiLength);
    if (asciiLength < text.size()) {
        const QByteArray rest = text.sliced(asciiLength).toUtf8();
        appendEscaped(rest.constData(), rest.constData() + rest.size());
    }
    out.append('"');
}

// Escaped into a buffer on the stack and appended in blocks: one call per byte into the output
// array costs more than the escaping itself.
template <typename Unit> void JsonWriter::appendEscaped(const Unit* begin, const Unit* end) {
    static constexpr char hexDigits[] = "0123456789abcdef";
    static constexpr std::size_t longestEscape = 6; // \u00XX
    std::array<char, 1024> buffer;
    std::size_t used = 0;
    for (; begin != end; ++begin) {
        if (used > buffer.size() - longestEscape) {
            out.append(buffer.data(), qsizetype(used));
            used = 0;
        }
        const auto c = char(*begin);
        if (const char* escape = escapeFor(c)) {
            buffer[used++] = escape[0];
            buffer[used++] = escape[1];
        } else if (uchar(c) < 0x20) {
            for (const char part :
                 {'\\', 'u', '0', '0', hexDigits[uchar(c) >> 4], hexDigits[c & 0xF]})
                buffer[used++] = part;
        } else {
            buffer[used++] = c;
        }
    }
    out.append(buffer.data(), qsizetype(used));
}

void JsonWriter::write(QStringView text) {
    beginValue();
    appendQuoted(text);
}

void JsonWriter::write(qint64 value) {
    beginValue();
    // Formatted on the stack: a tree writes several numbers per folder.
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    out.append(digits.data(), qsizetype(end - digits.data()));
}

void JsonWriter::write(double value) {
    beginValue();
    // JSON has no NaN or infinity; a broken duration must not make the whole result unreadable.
    out.append(std::isfinite(value) ? QByteArray::number(value, 'g', QLocale::FloatingPointShortest)
                                    : QByteArray("0"));
}

void JsonWriter::write(bool value) {
    beginValue();
    out.append(value ? "true" : "false");
}

void JsonWriter::write(const QUuid& id) {
    beginValue();
    // Laid out on the stack, as every folder of a tree has one. Hexadecimal digits and hyphens
    // only: nothing to escape.
    static constexpr char hexDigits[] = "0123456789ABCDEF";
    const std::array<uchar, 16> bytes{
        uchar(id.data1 >> 24), uchar(id.data1 >> 16), uchar(id.data1 >> 8), uchar(id.data1),
        uchar(id.data2 >> 8),  uchar(id.data2),       uchar(id.data3 >> 8), uchar(id.data3),
        id.data4[0],           id.data4[1],           id.data4[2],          id.data4[3],
        id.data4[4],           id.data4[5],           id.data4[6],          id.data4[7]};
    std::array<char, 38> text;
    std::size_t used = 0;
    text[used++] = '"';
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            text[used++] = '-';
        text[used++] = hexDigits[bytes[i] >> 4];
        text[used++] = hexDigits[bytes[i] & 0xF];
    }
    text[used++] = '"';
    out.append(text.data(), qsizetype(used));
}

QByteArray JsonWriter::take() {
    out.append('\n');
    return std::move(out);
}

bool JsonWriter::finish() {
    out.append('\n');
    passOn();
    return !m_sinkFailed;
}

void JsonWriter::passOn() {
    if (!m_sinkFailed)
        m_sinkFailed = !m_sink(out);
    out.resize(0); // keeps the capacity for the next piece
}

} // namespace tessarine::json
