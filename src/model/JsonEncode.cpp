#include "model/Json.h"

#include "model/JsonFolderTree.h"
#include "model/JsonWriter.h"

#include <algorithm>

namespace tessarine::json {

// Every record writes its members in ascending name order, which is what keeps the output's keys
// sorted; maps sort their keys at run time.
namespace {

QString memberName(const QString& key) {
    return key;
}

QString memberName(qint64 depth) {
    return QString::number(depth);
}

const std::map<qint64, DepthStats>& keyValuePairs(const std::map<qint64, DepthStats>& map) {
    return map;
}

auto keyValuePairs(const QHash<QString, ExtensionStats>& map) {
    return map.asKeyValueRange();
}

void writeStrings(JsonWriter& writer, const QStringList& strings) {
    writer.beginArray();
    for (const QString& text : strings)
        writer.write(text);
    writer.endArray();
}

void writeCategoryStats(JsonWriter& writer, const CategoryStats& stats) {
    writer.beginObject();
    writer.member(u"category", rawValue(stats.category));
    writer.key(u"extensions");
    // A set has no order; sorting keeps repeated exports of one result identical.
    QStringList extensions = stats.extensions.values();
    extensions.sort();
    writeStrings(writer, extensions);
    writer.member(u"fileCount", stats.fileCount);
    writer.member(u"id", stats.id);
    writer.member(u"totalSize", stats.totalSize);
    writer.endObject();
}

void writeDepthStats(JsonWriter& writer, const DepthStats& stats) {
    writer.beginObject();
    writer.member(u"fileCount", stats.fileCount);
    writer.member(u"folderCount", stats.folderCount);
    writer.member(u"totalSize", stats.totalSize);
    writer.endObject();
}

void writeExtensionStats(JsonWriter& writer, const ExtensionStats& stats) {
    writer.beginObject();
    writer.member(u"category", rawValue(stats.category));
    writer.member(u"ext", stats.ext);
    writer.member(u"fileCount", stats.fileCount);
    writer.member(u"id", stats.id);
    writer.member(u"totalSize", stats.totalSize);
    writer.endObject();
}

// A map as one object whose member names sort by their UTF-8 bytes, the order of Foundation's
// sorted-keys output: depth 10 comes before depth 2, and the empty extension comes first.
template <typename Map, typename WriteValue>
void writeMap(JsonWriter& writer, const Map& map, WriteValue writeValue) {
    struct Member {
        QString name;
        QByteArray order;
        const typename Map::mapped_type* value;
    };
    std::vector<Member> members;
    members.reserve(std::size_t(map.size()));
    for (const auto& [key, value] : keyValuePairs(map)) {
        const QString name = memberName(key);
        members.push_back({name, name.toUtf8(), &value});
    }
    std::sort(members.begin(), members.end(),
              [](const Member& a, const Member& b) { return a.order < b.order; });
    writer.beginObject();
    for (const Member& member : members) {
        writer.key(member.name);
        writeValue(writer, *member.value);
    }
    writer.endObject();
}

void writeFileInfo(JsonWriter& writer, const FileInfo& file) {
    writer.beginObject();
    writer.member(u"category", rawValue(file.category));
    writer.member(u"depth", file.depth);
    writer.member(u"fileExtension", file.fileExtension);
    writer.member(u"id", file.id);
    writer.member(u"isDirectory", file.isDirectory);
    writer.member(u"modificationDate", formatDate(file.modificationDate));
    writer.member(u"name", file.name);
    writer.member(u"path", file.path);
    writer.member(u"size", file.size);
    writer.endObject();
}

void writeInsight(JsonWriter& writer, const PatternInsight& insight) {
    writer.beginObject();
    writer.member(u"affectedCount", insight.affectedCount);
    writer.member(u"affectedSize", insight.affectedSize);
    writer.member(u"description", insight.description);
    writer.member(u"id", insight.id);
    writer.key(u"paths");
    writeStrings(writer, insight.paths);
    writer.member(u"title", insight.title);
    writer.member(u"type", rawValue(insight.type));
    writer.endObject();
}

void writeImportSource(JsonWriter& writer, const ImportSource& source) {
    writer.beginObject();
    writer.member(u"fileName", source.fileName);
    writer.member(u"importDate", formatDate(source.importDate));
    writer.member(u"program", source.program);
    writer.key(u"unknownFields");
    writeStrings(writer, source.unknownFields);
    writer.endObject();
}

template <typename Record, typename WriteOne>
void writeList(JsonWriter& writer, const QList<Record>& records, WriteOne writeOne) {
    writer.beginArray();
    for (const Record& record : records)
        writeOne(writer, record);
    writer.endArray();
}

void writeResult(JsonWriter& writer, const AnalysisResult& result) {
    writer.beginObject();
    writer.key(u"categoryBreakdown");
    writeList(writer, result.categoryBreakdown, writeCategoryStats);
    writer.key(u"depthDistribution");
    writeMap(writer, result.depthDistribution, writeDepthStats);
    writer.key(u"extensionStats");
    writeMap(writer, result.extensionStats, writeExtensionStats);
    writer.member(u"fileCount", result.fileCount);
    writer.member(u"folderCount", result.folderCount);
    if (result.folderTree) {
        writer.key(u"folderTree");
        writeFolderTree(writer, *result.folderTree);
    }
    writer.member(u"id", result.id);
    if (result.importSource) {
        writer.key(u"importSource");
        writeImportSource(writer, *result.importSource);
    }
    writer.key(u"insights");
    writeList(writer, result.insights, writeInsight);
    writer.key(u"largestFiles");
    writeList(writer, result.largestFiles, writeFileInfo);
    writer.member(u"maxDepth", result.maxDepth);
    writer.member(u"rootName", result.rootName);
    writer.member(u"rootPath", result.rootPath);
    writer.member(u"scanDate", formatDate(result.scanDate));
    writer.member(u"scanDuration", result.scanDuration);
    // Left out when every option is off, so that a default result keeps the form it always had.
    if (!result.scanOptions.isDefault()) {
        writer.key(u"scanOptions");
        writer.beginObject();
        writer.member(u"diskUsage", result.scanOptions.diskUsage);
        writer.member(u"includeHidden", result.scanOptions.includeHidden);
        writer.member(u"oneFileSystem", result.scanOptions.oneFileSystem);
        writer.endObject();
    }
    writer.member(u"totalSize", result.totalSize);
    writer.endObject();
}

} // namespace

QByteArray encode(const AnalysisResult& result) {
    JsonWriter writer;
    writeResult(writer, result);
    return writer.take();
}

bool encode(const AnalysisResult& result, const std::function<bool(QByteArrayView)>& sink) {
    JsonWriter writer(sink);
    writeResult(writer, result);
    return writer.finish();
}

} // namespace tessarine::json
