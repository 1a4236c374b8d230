#pragma once

#include <QByteArrayView>

namespace tessarine {

// Names starting with "." are hidden: left out together with everything below them.
bool isHiddenName(QByteArrayView name);

// "." and "..": the folder itself and its parent, never entries of their own.
bool isSelfOrParentName(QByteArrayView name);

// A folder whose name ends (in any letter case) in a bundle extension such as ".app" is a package:
// it counts as one folder and its contents are never listed, the same on every platform so that
// results from different machines compare.
bool isPackageName(QByteArrayView name);

// The text after the last "." of a name, as raw bytes; empty when the name has no ".", starts with
// one (a dot file's name is not an extension) or ends with one.
QByteArrayView pathExtension(QByteArrayView name);

} // namespace tessarine
