#include "model/JsonFolderTree.h"

#include "model/Json.h"
#include "model/JsonWriter.h"

#include <vector>

namespace tessarine::json {

namespace {

// Whether a folder's path is its parent's path followed by its name, as in any tree built from the
// file system; a tree read from elsewhere may say otherwise.
bool extendsParentPath(const QString& parentPath, const FolderInfo& folder) {
    const bool parentEndsWithSeparator = parentPath.endsWith(u'/');
    const qsizetype separator = parentEndsWithSeparator ? 0 : 1;
    return folder.path.size() == parentPath.size() + separator + folder.name.size() &&
           folder.path.startsWith(parentPath) &&
           (parentEndsWithSeparator || folder.path.at(parentPath.size()) == u'/') &&
           folder.path.endsWith(folder.name);
}

// A folder's name and path as they stand in its JSON strings.
struct EscapedFolder {
    QByteArray name;
    QByteArray path;
};

} // namespace

// Depth first with an explicit stack: a folder's children come first in its object ("childFolders"
// sorts first), so each folder is opened, its children written, and then it is closed. A path is
// escaped as its parent's escaped path and its own escaped name, instead of character by character
// again at every level: paths are most of a large tree's text.
void writeFolderTree(JsonWriter& writer, const FolderInfo& root) {
    struct OpenFolder {
        const FolderInfo* folder;
        std::size_t nextChild;
    };
    std::vector<OpenFolder> open;
    std::vector<EscapedFolder> escaped; // of each open folder, by depth; the buffers are reused
    const auto openFolder = [&](const FolderInfo& folder) {
        const std::size_t level = open.size();
        if (escaped.size() == level)
            escaped.emplace_back();
        EscapedFolder& text = escaped[level];
        text.name.truncate(0);
        JsonWriter::escape(folder.name, text.name);
        text.path.truncate(0);
        if (level > 0 && extendsParentPath(open.back().folder->path, folder)) {
            text.path.append(QByteArrayView(escaped[level - 1].path));
            if (!open.back().folder->path.endsWith(u'/'))
                text.path.append("\\/");
            text.path.append(QByteArrayView(text.name));
        } else {
            JsonWriter::escape(folder.path, text.path);
        }
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
        const EscapedFolder& text = escaped[open.size() - 1];
        writer.endArray();
        writer.member(u"color", rawValue(folder.color));
        writer.member(u"depth", folder.depth);
        writer.member(u"fileCount", folder.fileCount);
        writer.member(u"id", folder.id);
        writer.key(u"name");
        writer.writeEscaped(text.name);
        writer.key(u"path");
        writer.writeEscaped(text.path);
        writer.member(u"totalSize", folder.totalSize);
        writer.endObject();
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
