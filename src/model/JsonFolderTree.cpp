#include "model/JsonFolderTree.h"

#include "model/Json.h"
#include "model/JsonWriter.h"

#include <vector>

namespace tessarine::json {

// Depth first with an explicit stack: a folder's children come first in its object ("childFolders"
// sorts first), so each folder is opened, its children written, and then it is closed. Paths are
// escaped into one buffer that holds the open folders' paths one after the other: a folder whose
// path extends its parent's adds its escaped name, so that no path is escaped character by
// character again at every level (paths are most of a large tree's text), and the buffer never
// holds more than the deepest open folder's path, however deep the tree.
void writeFolderTree(JsonWriter& writer, const FolderInfo& root) {
    struct OpenFolder {
        const FolderInfo* folder;
        std::size_t nextChild;
        qsizetype pathStart;   // where its path begins in `paths`
        qsizetype pathsBefore; // the length of `paths` before it was opened
    };
    std::vector<OpenFolder> open;
    QByteArray paths;
    const auto openFolder = [&](const FolderInfo& folder) {
        const qsizetype pathsBefore = paths.size();
        qsizetype pathStart = pathsBefore;
        if (!open.empty() && folder.location.extends(open.back().folder->location)) {
            pathStart = open.back().pathStart;
            if (folder.location.separatesLastPart())
                paths.append("\\/");
            JsonWriter::escape(folder.location.lastPart(), paths);
        } else {
            JsonWriter::escape(folder.path(), paths);
        }
        writer.beginObject();
        writer.key(u"childFolders");
        writer.beginArray();
        open.push_back({&folder, 0, pathStart, pathsBefore});
    };
    openFolder(root);
    while (!open.empty()) {
        OpenFolder& top = open.back();
        if (top.nextChild < top.folder->childFolders.size()) {
            openFolder(top.folder->childFolders[top.nextChild++]);
            continue;
        }
        const FolderInfo& folder = *top.folder;
        writer.endArray();
        writer.member(u"color", rawValue(folder.color));
        writer.member(u"depth", folder.depth);
        writer.member(u"fileCount", folder.fileCount);
        writer.member(u"id", folder.id);
        writer.member(u"name", folder.name);
        writer.key(u"path");
        writer.writeEscaped(QByteArrayView(paths).sliced(top.pathStart));
        writer.member(u"totalSize", folder.totalSize);
        writer.endObject();
        paths.truncate(top.pathsBefore);
        open.pop_back();
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
