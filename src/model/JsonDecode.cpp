#include "model/Json.h"

#include "model/JsonObjectReader.h"

#include <QJsonDocument>
#include <QJsonParseError>

#include <iterator>

namespace tessarine::json {

namespace {

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

// Recursion is bounded here: Qt's parser rejects documents nested deeper than 1024 levels. A
// folder whose path is its parent's followed by its name shares its parent's path, as the folders
// of a tree built here do; any other path stands on its own, so that it reads back as it was.
FolderInfo readFolder(const ObjectReader& in, const FolderPath* parent) {
    const QString path = in.string(u"path");
    const QString name = in.string(u"name");
    FolderPath location = parent ? FolderPath(*parent, name) : FolderPath(path);
    if (parent && location.toString() != path)
        location = FolderPath(path);
    QList<FolderInfo> children = in.list(
        u"childFolders", [&](const ObjectReader& child) { return readFolder(child, &location); });
    return {.id = in.uuid(u"id"),
            .location = location,
            .name = name,
            .totalSize = in.integer(u"totalSize"),
            .fileCount = in.integer(u"fileCount"),
            // Moved, not copied: a copy would take each subtree once more at every level above.
            .childFolders =
                FolderInfoList(std::vector<FolderInfo>(std::make_move_iterator(children.begin()),
                                                       std::make_move_iterator(children.end()))),
            .depth = in.integer(u"depth"),
            .color = in.enumeration<FolderColor>(u"color")};
}

std::map<qint64, DepthStats> readDepthDistribution(const ObjectReader& in) {
    std::map<qint64, DepthStats> distribution;
    for (const auto& [name, member] : in.objectMembers()) {
        bool isNumber = false;
        const qint64 depth = name.toLongLong(&isNumber);
        if (!isNumber)
            fail(in.pathOf(name), QStringLiteral("member name is not a depth"));
        distribution[depth] = readDepthStats(member);
    }
    return distribution;
}

QHash<QString, ExtensionStats> readExtensionMap(const ObjectReader& in) {
    QHash<QString, ExtensionStats> extensions;
    for (const auto& [name, member] : in.objectMembers())
        extensions.insert(name, readExtensionStats(member));
    return extensions;
}

// Written only when some option is on; a member left out inside it is off.
ScanOptions readScanOptions(const ObjectReader& result) {
    if (result.isAbsentOrNull(u"scanOptions"))
        return {};
    const ObjectReader in = result.object(u"scanOptions");
    const auto flag = [&](QStringView name) {
        return !in.isAbsentOrNull(name) && in.boolean(name);
    };
    return {.includeHidden = flag(u"includeHidden"),
            .oneFileSystem = flag(u"oneFileSystem"),
            .diskUsage = flag(u"diskUsage")};
}

ImportSource readImportSource(const ObjectReader& in) {
    return {.program = in.string(u"program"),
            .fileName = in.string(u"fileName"),
            .importDate = in.date(u"importDate"),
            .unknownFields = in.strings(u"unknownFields")};
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
                              ? SharedFolderTree()
                              : SharedFolderTree(readFolder(in.object(u"folderTree"), nullptr)),
            .scanOptions = readScanOptions(in),
            .importSource = in.isAbsentOrNull(u"importSource")
                                ? std::nullopt
                                : std::optional(readImportSource(in.object(u"importSource")))};
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
