#include "model/JsonWriter.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <utility>

namespace tessarine::json {

namespace {

// Laid out as Foundation's pretty-printing JSONEncoder lays out its output, so that a history file
// written here and one written on a Mac look alike: two spaces per level, " : " after a name.
constexpr int indentWidth = 2;

// The longest escape of one byte, \u00XX.
constexpr qsizetype longestEscape = 6;

// How one ASCII character is written inside a string: itself, or a two-character escape as
// Foundation writes them ('/' too, unless told not to; any reader takes both forms). Length 0
// marks the control characters without a short form, written as \u00XX.
struct AsciiForm {
    char first = 0;
    char second = 0;
    unsigned char length = 0;
};

constexpr std::array<AsciiForm, 0x80> asciiForms = [] {
    std::array<AsciiForm, 0x80> forms{};
    for (int c = 0x20; c < 0x80; ++c)
        forms[c] = {char(c), 0, 1};
    for (const auto& [c, shortForm] : {std::pair{'"', '"'},
                                       {'\\', '\\'},
                                       {'/', '/'},
                                       {'\b', 'b'},
                                       {'\f', 'f'},
                                       {'\n', 'n'},
                                       {'\r', 'r'},
                                       {'\t', 't'}})
        forms[uchar(c)] = {'\\', shortForm, 2};
    return forms;
}();

constexpr char hexDigits[] = "0123456789abcdef";

char* unicodeEscape(char16_t unit, char* target) {
    for (const char part : {'\\', 'u', hexDigits[unit >> 12], hexDigits[(unit >> 8) & 0xF],
                            hexDigits[(unit >> 4) & 0xF], hexDigits[unit & 0xF]})
        *target++ = part;
    return target;
}

// Writes one ASCII character, escaped. Both bytes of the form are stored whatever its length, so
// that the common characters take no branch.
char* escapedAscii(char16_t c, char* target) {
    const AsciiForm form = asciiForms[c];
    if (form.length == 0)
        return unicodeEscape(c, target);
    target[0] = form.first;
    target[1] = form.second;
    return target + form.length;
}

char* escapedUtf8(QStringView text, char* target) {
    for (const char byte : text.toUtf8()) {
        if (uchar(byte) < 0x80)
            target = escapedAscii(char16_t(byte), target);
        else
            *target++ = byte;
    }
    return target;
}

bool isUnpairedSurrogate(const char16_t* unit, const char16_t* begin, const char16_t* end) {
    if (QChar::isHighSurrogate(*unit))
        return unit + 1 == end || !QChar::isLowSurrogate(unit[1]);
    return QChar::isLowSurrogate(*unit) && (unit == begin || !QChar::isHighSurrogate(unit[-1]));
}

// Writes `text` escaped, as UTF-8. Member names, folder names and paths are nearly always ASCII,
// whose UTF-16 units are their UTF-8 bytes: those are escaped straight from the string, without
// a UTF-8 copy of it. The rest, from the first other unit on (never inside a surrogate pair), is
// converted first, but for unpaired surrogates, which UTF-8 cannot hold: they stand for bytes of
// names that are not UTF-8, and go as \udcXX escapes, which read back as they were. No unit
// takes more than longestEscape bytes, whichever way it goes.
char* escaped(QStringView text, char* target) {
    const char16_t* const begin = text.utf16();
    const char16_t* unit = begin;
    const char16_t* const end = unit + text.size();
    for (; unit != end && *unit < 0x80; ++unit)
        target = escapedAscii(*unit, target);
    const char16_t* run = unit;
    for (; unit != end; ++unit) {
        if (!isUnpairedSurrogate(unit, begin, end))
            continue;
        target = unicodeEscape(*unit, escapedUtf8(QStringView(run, unit), target));
        run = unit + 1;
    }
    return escapedUtf8(QStringView(run, end), target);
}

} // namespace

// Every item starts on a new line, so this is where a full piece is passed on.
void JsonWriter::newLine() {
    if (m_sink && m_used >= pieceBytes)
        passOn();
    const auto indent = qsizetype(containerHasItems.size()) * indentWidth;
    char* target = tail(1 + indent);
    *target = '\n';
    std::memset(target + 1, ' ', std::size_t(indent));
    advance(target + 1 + indent);
}

// Grows by doubling, without initialising: every byte is written before it is counted.
char* JsonWriter::tail(qsizetype bytes) {
    if (m_used + bytes > m_out.size())
        m_out.resize(std::max(2 * m_out.size(), m_used + bytes));
    return m_out.data() + m_used;
}

void JsonWriter::append(const char* text, qsizetype length) {
    std::memcpy(tail(length), text, std::size_t(length));
    m_used += length;
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
        append(',');
    containerHasItems.back() = true;
    newLine();
}

void JsonWriter::beginContainer(char open) {
    beginValue();
    append(open);
    containerHasItems.push_back(false);
}

void JsonWriter::endContainer(char close) {
    // An empty container still spans lines, with one blank line inside, as the platform's
    // encoder writes it.
    if (!containerHasItems.back())
        append('\n');
    containerHasItems.pop_back();
    newLine();
    append(close);
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
    append(" : ", 3);
    afterKey = true;
}

void JsonWriter::plainKey(QStringView name) {
    beginValue();
    char* target = tail(name.size() + 5);
    *target++ = '"';
    for (const QChar unit : name)
        *target++ = char(unit.unicode());
    std::memcpy(target, "\" : ", 4);
    advance(target + 4);
    afterKey = true;
}

void JsonWriter::appendQuoted(QStringView text) {
    char* target = tail(2 + text.size() * longestEscape);
    *target++ = '"';
    target = escaped(text, target);
    *target++ = '"';
    advance(target);
}

void JsonWriter::escape(QStringView text, QByteArray& target) {
    const qsizetype start = target.size();
    target.resize(start + text.size() * longestEscape);
    target.truncate(escaped(text, target.data() + start) - target.constData());
}

void JsonWriter::writeEscaped(QByteArrayView escapedText) {
    beginValue();
    char* target = tail(2 + escapedText.size());
    *target++ = '"';
    std::memcpy(target, escapedText.data(), std::size_t(escapedText.size()));
    target += escapedText.size();
    *target++ = '"';
    advance(target);
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
    append(digits.data(), qsizetype(end - digits.data()));
}

void JsonWriter::write(double value) {
    beginValue();
    // JSON has no NaN or infinity; a broken duration must not make the whole result unreadable.
    const QByteArray text = std::isfinite(value)
                                ? QByteArray::number(value, 'g', QLocale::FloatingPointShortest)
                                : QByteArray("0");
    append(text.constData(), text.size());
}

void JsonWriter::write(bool value) {
    beginValue();
    append(value ? "true" : "false", value ? 4 : 5);
}

void JsonWriter::write(std::optional<qint64> value) {
    if (value) {
        write(*value);
        return;
    }
    beginValue();
    append("null", 4);
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
    append(text.data(), qsizetype(used));
}

QByteArray JsonWriter::take() {
    append('\n');
    m_out.resize(m_used);
    m_used = 0;
    return std::move(m_out);
}

bool JsonWriter::finish() {
    append('\n');
    passOn();
    return !m_sinkFailed;
}

void JsonWriter::passOn() {
    if (!m_sinkFailed)
        m_sinkFailed = !m_sink(QByteArrayView(m_out.constData(), m_used));
    m_used = 0; // the room is reused for the next piece
}

} // namespace tessarine::json
