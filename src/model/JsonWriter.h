#pragma once

#include <QByteArray>
#include <QStringView>

#include <vector>

namespace tessarine::json {

// A streaming, indented JSON writer. It keeps its nesting on the heap rather than on the call
// stack, so a folder tree thousands of levels deep encodes as safely as a flat one. Callers write
// object members in ascending name order; the writer only lays them out.
class JsonWriter {
public:
    void beginObject();
    void endObject();
    void beginArray();
    void endArray();
    void key(QStringView name);

    void writeString(QStringView text);
    void writeInteger(qint64 value);
    void writeNumber(double value);
    void writeBool(bool value);

    QByteArray take();

private:
    void beginValue();
    void newLine();
    void beginContainer(char open);
    void endContainer(char close);
    void appendQuoted(QStringView text);

    QByteArray out;
    std::vector<bool> containerHasItems;
    bool afterKey = false;
};

} // namespace tessarine::json
