#include "model/JsonFolderTree.h"

#include "model/Json.h"
#include "model/JsonWriter.h"

#include <vector>

namespace tessarine::json {

namespace {

// The members that follow "childFolders", once the children are written.
void writeFolderTail(JsonWriter& writer, const FolderInfo& folder) {
    writer.member(u"color", rawValue(folder.color));
    writer.member(u"depth", folder.depth);
    writer.member(u"fileCount", folder.fileCount);
    writer.member(u"id", folder.id);
    writer.member(u"name", folder.name);
    writer.member(u"path", folder.path);
    writer.member(u"totalSize", folder.totalSize);
}

} // namespace

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

QByteArray encode(const FolderInfo& folder) {
    JsonWriter writer;
    writeFolderTree(writer, folder);
    return writer.take();
}

bool encode(const FolderInfo& folder, const std::function<bool(QByteArrayView)>& sink) {
    JsonWriter writer(sink);
    writeFolderTree(writer, folder);
    return writer.finish();
}

} // namespace tessarine::json
