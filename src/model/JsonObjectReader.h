#pragma once

#include "model/RawValue.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <type_traits>
#include <utility>

namespace tessarine::json {

// Thrown inside the decoder only: one bad member abandons the whole result, so unwinding to the
// single entry point keeps every reader free of error plumbing.
struct DecodeFailure {
    QString message;
};

[[noreturn]] void fail(const QString& where, const QString& problem);

// One JSON object being read, with its position in the document ("largestFiles[2].size") for
// error texts. Every accessor fails on a missing member or a member of the wrong type.
class ObjectReader {
public:
    ObjectReader(const QJsonValue& value, QString where);

    QString pathOf(QStringView name) const;
    bool isAbsentOrNull(QStringView name) const;
    // Every member as an object, in document order. Taken by walking the object, not by looking
    // each name up again: Qt 6.4's QJsonObject does not find every name it holds (a name with an
    // escaped character and one from U+E000 to U+FFFF, beside a name with an emoji), and a result
    // with such extensions would not read back.
    QList<std::pair<QString, ObjectReader>> objectMembers() const;

    QString string(QStringView name) const;
    qint64 integer(QStringView name) const;
    double number(QStringView name) const;
    bool boolean(QStringView name) const;
    QUuid uuid(QStringView name) const;
    QDateTime date(QStringView name) const;
    QStringList strings(QStringView name) const;
    ObjectReader object(QStringView name) const;

    template <typename E> E enumeration(QStringView name) const {
        const QString text = string(name);
        const std::optional<E> value = fromRawValue<E>(text);
        if (!value)
            fail(pathOf(name), QStringLiteral("unknown value \"%1\"").arg(text));
        return *value;
    }

    template <typename Read> auto list(QStringView name, Read read) const {
        using Record = std::invoke_result_t<Read, const ObjectReader&>;
        const QJsonArray values = array(name);
        QList<Record> result;
        result.reserve(values.size());
        for (qsizetype i = 0; i < values.size(); ++i)
            result.append(read(ObjectReader(values[i], itemPath(name, i))));
        return result;
    }

private:
    QJsonValue member(QStringView name) const;
    QJsonValue member(QStringView name, QJsonValue::Type type, const char* expected) const;
    QJsonArray array(QStringView name) const;
    QString itemPath(QStringView name, qsizetype index) const;

    QString where;
    QJsonObject json;
};

} // namespace tessarine::json
