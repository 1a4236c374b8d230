#pragma once

#include <QByteArray>
#include <QStringView>
#include <QUuid>

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

    void write(QStringView text);
    void write(qint64 value);
    void write(double value);
    void write(bool value);
    // The canonical 8-4-4-4-12 form in upper case.
    void write(const QUuid& id);

    // A name and its value in one call.
    template <typename Value> void member(QStringView name, const Value& value) {
        key(name);
        write(value);
    }

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
