#pragma once

#include <QByteArrayView>

namespace tessarine {

// Names starting with "." are hidden: left out together with everything below them.
bool isHiddenName(QByteArrayView name);

// A folder whose name ends (in any letter case) in a bundle extension such as ".app" is a package:
// it counts as one folder and its contents are never listed, the same on every platform so that
// results from different machines compare.
bool isPackageName(QByteArrayView name);

} // namespace tessarine
