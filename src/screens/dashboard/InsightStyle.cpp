#include "screens/dashboard/InsightStyle.h"

namespace tessarine {

QString insightSymbol(InsightType type) {
    switch (type) {
    case InsightType::nodeModules:
        return QStringLiteral("shippingbox");
    case InsightType::duplicateNames:
        return QStringLiteral("doc.on.doc");
    case InsightType::oldFiles:
        return QStringLiteral("clock.arrow.circlepath");
    case InsightType::largeCache:
        return QStringLiteral("arrow.3.trianglepath");
    case InsightType::emptyFolders:
        return QStringLiteral("folder");
    case InsightType::hiddenFiles:
        return QStringLiteral("eye.slash");
    }
    return {};
}

QString insightColor(InsightType type) {
    switch (type) {
    case InsightType::nodeModules:
        return QStringLiteral("orange");
    case InsightType::duplicateNames:
        return QStringLiteral("purple");
    case InsightType::oldFiles:
        return QStringLiteral("yellow");
    case InsightType::largeCache:
        return QStringLiteral("red");
    case InsightType::emptyFolders:
        return QStringLiteral("gray");
    case InsightType::hiddenFiles:
        return QStringLiteral("blue");
    }
    return {};
}

} // namespace tessarine
