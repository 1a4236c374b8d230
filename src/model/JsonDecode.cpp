#include "model/Json.h"

#include "model/ScanProgress.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>

namespace tessarine::json {

namespace {

// Thrown inside the decoder only: one bad member abandons the whole result, so unwinding to the
// single entry point keeps every reader free of error plumbing.
struct DecodeFailure {
    QString message;
};

[[noreturn]] void fail(const QString& where, const QString& problem) {
    throw DecodeFailure{where.isEmpty() ? problem : where + QStringLiteral(": ") + problem};
}

// One JSON object being read, with its position in the document for error texts.
class ObjectReader {
public:
    ObjectReader(const QJsonValue& value, QString where)
        : where(std::move(where)) {
        if (!value.isObject())
            fail(this->where, QStringLiteral("expected an object"));
        json = value.toObject();
    }

    QString pathOf(QStringView name) const {
        return where.isEmpty() ? name.toString() : where + QLatin1Char('.') + name.toString();
    }

    QJsonValue member(QStringView name) const {
        const QJsonValue value = json.value(name);
        if (value.isUndefined())
            fail(pathOf(name), QStringLiteral("missing member"));
        return value;
    }

    bool isAbsentOrNull(QStringView name) const {
        const QJsonValue value = json.value(name);
        return value.isUndefined() || value.isNull();
    }

    QString string(QStringView name) const {
        const QJsonValue value = member(name);
        if (!value.isString())
            fail(pathOf(name), QStringLiteral("expected a string"));
        return value.toString();
    }

    qint64 integer(QStringView name) const {
        const QJsonValue value = member(name);
        // toInteger() answers its fallback for anything that is not an exactly representable
        // whole number; two different fallbacks tell that case apart from a genuine value.
        const qint64 result = value.toInteger(0);
        if (!value.isDouble() || result != value.toInteger(1))
            fail(pathOf(name), QStringLiteral("expected an integer"));
        return result;
    }

    double number(QStringView name) const {
        const QJsonValue value = member(name);
        if (!value.isDouble())
            fail(pathOf(name), QStringLiteral("expected a number"));
        return value.toDouble();
    }

    bool boolean(QStringView name) const {
        const QJsonValue value = member(name);
        if (!value.isBool())
            fail(pathOf(name), QStringLiteral("expected true or false"));
        return value.toBool();
    }

    QUuid uuid(QStringView name) const {
        const QString text = string(name);
        const QUuid id = QUuid::fromString(text);
        // fromString also takes braces; only the bare 8-4-4-4-12 form is accepted here.
        if (text.size() != 36 ||
            id.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) != 0)
            fail(pathOf(name), QStringLiteral("not a UUID: \"%1\"").arg(text));
        return id;
    }

    QDateTime date(QStringView name) const {
        const QString text = string(name);
        const std::optional<QDateTime> date = parseDate(text);
        if (!date)
            fail(pathOf(name),
                 QStringLiteral("not a date of the form 2024-03-05T14:07:09Z: \"%1\"").arg(text));
        return *date;
    }

    template <typename E> E enumeration(QStringView name) const {
        const QString text = string(name);
        const std::optional<E> value = fromRawValue<E>(text);
        if (!value)
            fail(pathOf(name), QStringLiteral("unknown value \"%1\"").arg(text));
        return *value;
    }

    QJsonArray array(QStringView name) const {
        const QJsonValue value = member(name);
        if (!value.isArray())
            fail(pathOf(name), QStringLiteral("expected an array"));
        return value.toArray();
    }

    ObjectReader object(QStringView name) const { return ObjectReader(member(name), pathOf(name)); }

    QStringList keys() const { return json.keys(); }

    QStringList strings(QStringView name) const {
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

    template <typename Record>
    QList<Record> list(QStringView name, Record (*read)(const ObjectReader&)) const {
        const QJsonArray values = array(name);
        QList<Record> result;
        result.reserve(values.size());
        for (qsizetype i = 0; i < values.size(); ++i)
            result.append(read(ObjectReader(values[i], itemPath(name, i))));
        return result;
    }

    QString itemPath(QStringView name, qsizetype index) const {
        return pathOf(name) + QLatin1Char('[') + QString::number(index) + QLatin1Char(']');
    }

private:
    QString where;
    QJsonObject json;
};

CategoryStats readCategoryStats(const ObjectReader& in) {
    const QStringList extensions = in.strings(u"extensions");
    return {.id = in.uuid(u"id"),
            .category = in.enumeration<FileCategory>(u"category"),
            .fileCount = in.integer(u"fileCount"),
            .totalSize = in.integer(u"totalSize"),
            .extensions = QSet<QString>(extensions.begin(), extensions.end())};
}

DepthStats readDepthStats(const ObjectReader& in) {
    return {.fileCount = in.integer(u"fileCount"),
            .folderCount = in.integer(u"folderCount"),
            .totalSize = in.integer(u"totalSize")};
}

ExtensionStats readExtensionStats(const ObjectReader& in) {
    return {.id = in.uuid(u"id"),
            .ext = in.string(u"ext"),
            .category = in.enumeration<FileCategory>(u"category"),
            .fileCount = in.integer(u"fileCount"),
            .totalSize = in.integer(u"totalSize")};
}

PatternInsight readInsight(const ObjectReader& in) {
    return {.id = in.uuid(u"id"),
            .type = in.enumeration<InsightType>(u"type"),
            .title = in.string(u"title"),
            .description = in.string(u"description"),
            .affectedSize = in.integer(u"affectedSize"),
            .affectedCount = in.integer(u"affectedCount"),
            .paths = in.strings(u"paths")};
}

FileInfo readFileInfo(const ObjectReader& in) {
    return {.id = in.uuid(u"id"),
            .path = in.string(u"path"),
            .name = in.string(u"name"),
            .size = in.integer(u"size"),
            .fileExtension = in.string(u"fileExtension"),
            .category = in.enumeration<FileCategory>(u"category"),
            .depth = in.integer(u"depth"),
            .modificationDate = in.date(u"modificationDate"),
            .isDirectory = in.boolean(u"isDirectory")};
}

// Recursion is bounded here: Qt's parser rejects documents nested deeper than 1024 levels.
FolderInfo readFolder(const ObjectReader& in) {
    const QList<FolderInfo> children = in.list(u"childFolders", readFolder);
    return {.id = in.uuid(u"id"),
            .path = in.string(u"path"),
            .name = in.string(u"name"),
            .totalSize = in.integer(u"totalSize"),
            .fileCount = in.integer(u"fileCount"),
            .childFolders =
                FolderInfoList(std::vector<FolderInfo>(children.begin(), children.end())),
            .depth = in.integer(u"depth"),
            .color = in.enumeration<FolderColor>(u"color")};
}

std::map<qint64, DepthStats> readDepthDistribution(const ObjectReader& in) {
    std::map<qint64, DepthStats> distribution;
    for (const QString& name : in.keys()) {
        bool isNumber = false;
        const qint64 depth = name.toLongLong(&isNumber);
        if (!isNumber)
            fail(in.pathOf(name), QStringLiteral("member name is not a depth"));
        distribution[depth] = readDepthStats(in.object(name));
    }
    return distribution;
}

QHash<QString, ExtensionStats> readExtensionMap(const ObjectReader& in) {
    QHash<QString, ExtensionStats> extensions;
    for (const QString& name : in.keys())
        extensions.insert(name, readExtensionStats(in.object(name)));
    return extensions;
}

AnalysisResult readResult(const ObjectReader& in) {
    return {.id = in.uuid(u"id"),
            .scanDate = in.date(u"scanDate"),
            .rootPath = in.string(u"rootPath"),
            .rootName = in.string(u"rootName"),
            .totalSize = in.integer(u"totalSize"),
            .fileCount = in.integer(u"fileCount"),
            .folderCount = in.integer(u"folderCount"),
            .maxDepth = in.integer(u"maxDepth"),
            .scanDuration = in.number(u"scanDuration"),
            .categoryBreakdown = in.list(u"categoryBreakdown", readCategoryStats),
            .largestFiles = in.list(u"largestFiles", readFileInfo),
            .depthDistribution = readDepthDistribution(in.object(u"depthDistribution")),
            .extensionStats = readExtensionMap(in.object(u"extensionStats")),
            .insights = in.list(u"insights", readInsight),
            .folderTree = in.isAbsentOrNull(u"folderTree")
                              ? std::nullopt
                              : std::optional(readFolder(in.object(u"folderTree")))};
}

} // namespace

std::optional<AnalysisResult> decodeResult(const QByteArray& bytes, QString* error) {
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    try {
        if (parseError.error != QJsonParseError::NoError)
            fail(QStringLiteral("offset %1").arg(parseError.offset), parseError.errorString());
        const QJsonValue root = document.isObject() ? QJsonValue(document.object()) : QJsonValue();
        return readResult(ObjectReader(root, QString()));
    } catch (const DecodeFailure& failure) {
        if (error)
            *error = failure.message;
        return std::nullopt;
    }
}

} // namespace tessarine::json
