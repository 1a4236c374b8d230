#include "model/JsonWriter.h"

#include <QLocale>

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

void JsonWriter::newLine() {
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
    // An empty container still spans lines, with one blank line inside, as the platform's encoder
    // writes it.
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
    for (const char c : text.toUtf8()) {
        if (const char* escape = escapeFor(c))
            out.append(escape);
        else if (uchar(c) < 0x20)
            out.append(QByteArray("\\u00") +
                       QByteArray::number(uchar(c), 16).rightJustified(2, '0'));
        else
            out.append(c);
    }
    out.append('"');
}

void JsonWriter::write(QStringView text) {
    beginValue();
    appendQuoted(text);
}

void JsonWriter::write(qint64 value) {
    beginValue();
    out.append(QByteArray::number(value));
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
    write(QString::fromLatin1(id.toByteArray(QUuid::WithoutBraces).toUpper()));
}

QByteArray JsonWriter::take() {
    out.append('\n');
    return std::move(out);
}

} // namespace tessarine::json
