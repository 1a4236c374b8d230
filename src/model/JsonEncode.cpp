#include "model/Json.h"

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

void writeId(JsonWriter& writer, const QUuid& id) {
    writer.key(u"id");
    writer.writeString(id.toString(QUuid::WithoutBraces).toUpper());
}

void writeDate(JsonWriter& writer, const QDateTime& date) {
    writer.writeString(formatDate(date));
}

void writeStrings(JsonWriter& writer, const QStringList& strings) {
    writer.beginArray();
    for (const QString& text : strings)
        writer.writeString(text);
    writer.endArray();
}

void writeCategoryStats(JsonWriter& writer, const CategoryStats& stats) {
    writer.beginObject();
    writer.key(u"category");
    writer.writeString(rawValue(stats.category));
    writer.key(u"extensions");
    // A set has no order; sorting keeps repeated exports of one result identical.
    QStringList extensions = stats.extensions.values();
    extensions.sort();
    writeStrings(writer, extensions);
    writer.key(u"fileCount");
    writer.writeInteger(stats.fileCount);
    writeId(writer, stats.id);
    writer.key(u"totalSize");
    writer.writeInteger(stats.totalSize);
    writer.endObject();
}

void writeDepthStats(JsonWriter& writer, const DepthStats& stats) {
    writer.beginObject();
    writer.key(u"fileCount");
    writer.writeInteger(stats.fileCount);
    writer.key(u"folderCount");
    writer.writeInteger(stats.folderCount);
    writer.key(u"totalSize");
    writer.writeInteger(stats.totalSize);
    writer.endObject();
}

void writeExtensionStats(JsonWriter& writer, const ExtensionStats& stats) {
    writer.beginObject();
    writer.key(u"category");
    writer.writeString(rawValue(stats.category));
    writer.key(u"ext");
    writer.writeString(stats.ext);
    writer.key(u"fileCount");
    writer.writeInteger(stats.fileCount);
    writeId(writer, stats.id);
    writer.key(u"totalSize");
    writer.writeInteger(stats.totalSize);
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
    writer.key(u"category");
    writer.writeString(rawValue(file.category));
    writer.key(u"depth");
    writer.writeInteger(file.depth);
    writer.key(u"fileExtension");
    writer.writeString(file.fileExtension);
    writeId(writer, file.id);
    writer.key(u"isDirectory");
    writer.writeBool(file.isDirectory);
    writer.key(u"modificationDate");
    writeDate(writer, file.modificationDate);
    writer.key(u"name");
    writer.writeString(file.name);
    writer.key(u"path");
    writer.writeString(file.path);
    writer.key(u"size");
    writer.writeInteger(file.size);
    writer.endObject();
}

void writeInsight(JsonWriter& writer, const PatternInsight& insight) {
    writer.beginObject();
    writer.key(u"affectedCount");
    writer.writeInteger(insight.affectedCount);
    writer.key(u"affectedSize");
    writer.writeInteger(insight.affectedSize);
    writer.key(u"description");
    writer.writeString(insight.description);
    writeId(writer, insight.id);
    writer.key(u"paths");
    writeStrings(writer, insight.paths);
    writer.key(u"title");
    writer.writeString(insight.title);
    writer.key(u"type");
    writer.writeString(rawValue(insight.type));
    writer.endObject();
}

// The members that follow "childFolders", once the children are written.
void writeFolderTail(JsonWriter& writer, const FolderInfo& folder) {
    writer.key(u"color");
    writer.writeString(rawValue(folder.color));
    writer.key(u"depth");
    writer.writeInteger(folder.depth);
    writer.key(u"fileCount");
    writer.writeInteger(folder.fileCount);
    writeId(writer, folder.id);
    writer.key(u"name");
    writer.writeString(folder.name);
    writer.key(u"path");
    writer.writeString(folder.path);
    writer.key(u"totalSize");
    writer.writeInteger(folder.totalSize);
}

// Depth first with an explicit stack: a folder's children come first in its object ("childFolders"
// sorts first), so each folder is opened, its children written, and then it is closed.
void writeFolderTree(JsonWriter& writer, const FolderInfo& root) {
    struct OpenFolder {
        const FolderInfo* folder;
        std::size_t nextChild;
    };
    std::vector<OpenFolder> open;
    const auto openFolder = [&](const FolderInfo& folder) {
        writer.beginObject();
        writer.key(u"childFolders");
        writer.beginArray();
        open.push_back({&folder, 0});
    };
    openFolder(root);
    while (!open.empty()) {
        OpenFolder& top = open.back();
        if (top.nextChild < top.folder->childFolders.size()) {
            openFolder(top.folder->childFolders[top.nextChild++]);
            continue;
        }
        const FolderInfo& folder = *top.folder;
        open.pop_back();
        writer.endArray();
        writeFolderTail(writer, folder);
        writer.endObject();
    }
}

template <typename Record, typename WriteOne>
void writeList(JsonWriter& writer, const QList<Record>& records, WriteOne writeOne) {
    writer.beginArray();
    for (const Record& record : records)
        writeOne(writer, record);
    writer.endArray();
}

} // namespace

QByteArray encode(const AnalysisResult& result) {
    JsonWriter writer;
    writer.beginObject();
    writer.key(u"categoryBreakdown");
    writeList(writer, result.categoryBreakdown, writeCategoryStats);
    writer.key(u"depthDistribution");
    writeMap(writer, result.depthDistribution, writeDepthStats);
    writer.key(u"extensionStats");
    writeMap(writer, result.extensionStats, writeExtensionStats);
    writer.key(u"fileCount");
    writer.writeInteger(result.fileCount);
    writer.key(u"folderCount");
    writer.writeInteger(result.folderCount);
    if (result.folderTree) {
        writer.key(u"folderTree");
        writeFolderTree(writer, *result.folderTree);
    }
    writeId(writer, result.id);
    writer.key(u"insights");
    writeList(writer, result.insights, writeInsight);
    writer.key(u"largestFiles");
    writeList(writer, result.largestFiles, writeFileInfo);
    writer.key(u"maxDepth");
    writer.writeInteger(result.maxDepth);
    writer.key(u"rootName");
    writer.writeString(result.rootName);
    writer.key(u"rootPath");
    writer.writeString(result.rootPath);
    writer.key(u"scanDate");
    writeDate(writer, result.scanDate);
    writer.key(u"scanDuration");
    writer.writeNumber(result.scanDuration);
    writer.key(u"totalSize");
    writer.writeInteger(result.totalSize);
    writer.endObject();
    return writer.take();
}

QByteArray encode(const FolderInfo& folder) {
    JsonWriter writer;
    writeFolderTree(writer, folder);
    return writer.take();
}

} // namespace tessarine::json
