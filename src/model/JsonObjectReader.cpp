#include "model/JsonObjectReader.h"

#include "model/Json.h"

#include <utility>

namespace tessarine::json {

void fail(const QString& where, const QString& problem) {
    throw DecodeFailure{where.isEmpty() ? problem : where + QStringLiteral(": ") + problem};
}

ObjectReader::ObjectReader(const QJsonValue& value, QString where)
    : where(std::move(where)) {
    if (!value.isObject())
        fail(this->where, QStringLiteral("expected an object"));
    json = value.toObject();
}

QString ObjectReader::pathOf(QStringView name) const {
    return where.isEmpty() ? name.toString() : where + QLatin1Char('.') + name.toString();
}

QJsonValue ObjectReader::member(QStringView name) const {
    const QJsonValue value = json.value(name);
    if (value.isUndefined())
        fail(pathOf(name), QStringLiteral("missing member"));
    return value;
}

bool ObjectReader::isAbsentOrNull(QStringView name) const {
    const QJsonValue value = json.value(name);
    return value.isUndefined() || value.isNull();
}

QJsonValue ObjectReader::member(QStringView name, QJsonValue::Type type,
                                const char* expected) const {
    const QJsonValue value = member(name);
    if (value.type() != type)
        fail(pathOf(name), QLatin1String(expected));
    return value;
}

QString ObjectReader::string(QStringView name) const {
    return member(name, QJsonValue::String, "expected a string").toString();
}

qint64 ObjectReader::integer(QStringView name) const {
    const QJsonValue value = member(name, QJsonValue::Double, "expected an integer");
    // toInteger() answers its fallback for anything that is not an exactly representable
    // whole number; two different fallbacks tell that case apart from a genuine value.
    const qint64 result = value.toInteger(0);
    if (result != value.toInteger(1))
        fail(pathOf(name), QStringLiteral("expected an integer"));
    return result;
}

double ObjectReader::number(QStringView name) const {
    return member(name, QJsonValue::Double, "expected a number").toDouble();
}

bool ObjectReader::boolean(QStringView name) const {
    return member(name, QJsonValue::Bool, "expected true or false").toBool();
}

QUuid ObjectReader::uuid(QStringView name) const {
    const QString text = string(name);
    const QUuid id = QUuid::fromString(text);
    // fromString also takes braces; only the bare 8-4-4-4-12 form is accepted here.
    if (text.size() != 36 ||
        id.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) != 0)
        fail(pathOf(name), QStringLiteral("not a UUID: \"%1\"").arg(text));
    return id;
}

QDateTime ObjectReader::date(QStringView name) const {
    const QString text = string(name);
    const std::optional<QDateTime> date = parseDate(text);
    if (!date)
        fail(pathOf(name),
             QStringLiteral("not a date of the form 2024-03-05T14:07:09Z: \"%1\"").arg(text));
    return *date;
}

QJsonArray ObjectReader::array(QStringView name) const {
    return member(name, QJsonValue::Array, "expected an array").toArray();
}

ObjectReader ObjectReader::object(QStringView name) const {
    return ObjectReader(member(name), pathOf(name));
}

QStringList ObjectReader::strings(QStringView name) const {
    const QJsonArray values = array(name);
    QStringList result;
    result.reserve(values.size());
    for (qsizetype i = 0; i < values.size(); ++i) {
        if (!values[i].isString())
            fail(itemPath(name, i), QStringLiteral("expected a string"));
        result.append(values[i].toString());
    }
    return result;
}

QString ObjectReader::itemPath(QStringView name, qsizetype index) const {
    return pathOf(name) + QLatin1Char('[') + QString::number(index) + QLatin1Char(']');
}

QList<std::pair<QString, ObjectReader>> ObjectReader::objectMembers() const {
    QList<std::pair<QString, ObjectReader>> members;
    members.reserve(json.size());
    for (auto member = json.begin(); member != json.end(); ++member)
        members.append({member.key(), ObjectReader(member.value(), pathOf(member.key()))});
    return members;
}

} // namespace tessarine::json
