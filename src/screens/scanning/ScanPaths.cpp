#include "screens/scanning/ScanPaths.h"

#include "model/PathNames.h"

namespace tessarine {

namespace {

constexpr qsizetype deepestCrumbCount = 6;

} // namespace

QStringList locationCrumbs(QStringView path) {
    QStringList crumbs;
    for (QStringView piece : path.split(u'/', Qt::SkipEmptyParts))
        crumbs.append(piece.toString());
    if (crumbs.size() > deepestCrumbCount)
        crumbs.remove(0, crumbs.size() - deepestCrumbCount);
    return crumbs;
}

bool looksLikeFolder(QStringView path) {
    return path.endsWith(u'/') || !lastPathComponent(path).contains(u'.');
}

} // namespace tessarine
