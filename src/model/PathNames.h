#pragma once

#include <QString>
#include <QStringView>

// Names taken from "/"-separated path texts, without touching the disk. One rule everywhere:
// trailing separators are ignored, and the root "/" names itself.
namespace tessarine {

// The form a scanned folder's path takes in results: absolute, cleaned, with no trailing
// separator except for "/" itself. Symbolic links are kept, not resolved. "" stays "".
QString cleanRootPath(const QString& folderPath);

// The folder holding the path's last component: "/a/b" for "/a/b/c" and "/a/b/c/", "/" for "/a"
// and for "/" itself, "" for a path without a "/".
QString parentFolder(QStringView path);

// The last component: "c" for "/a/b/c" and "/a/b/c/", "notes.md" for "notes.md", "/" for "/"
// (and "//"), empty for "".
QString lastPathComponent(QStringView path);

// A scanned folder's name as the sidebar and the history show it: its last component, empty for
// the root folder (which names itself elsewhere), "Unknown" without a path.
QString scannedFolderName(const QString& rootPath);

} // namespace tessarine
