#include "model/InsightType.h"

#include "model/RawValueTable.h"

namespace tessarine {

namespace {

const std::array<QString, 6> insightNames = {
    QStringLiteral("Node Modules"),  QStringLiteral("Duplicate Names"),
    QStringLiteral("Old Files"),     QStringLiteral("Large Cache"),
    QStringLiteral("Empty Folders"), QStringLiteral("Hidden Files"),
};

} // namespace

const std::array<InsightType, 6>& allInsightTypes() {
    static constexpr std::array<InsightType, 6> all = {
        InsightType::nodeModules, InsightType::duplicateNames, InsightType::oldFiles,
        InsightType::largeCache,  InsightType::emptyFolders,   InsightType::hiddenFiles,
    };
    return all;
}

QString rawValue(InsightType type) {
    return rawValueAt(insightNames, type);
}

template <> std::optional<InsightType> fromRawValue<InsightType>(QStringView raw) {
    return caseWithRawValue<InsightType>(insightNames, raw);
}

} // namespace tessarine
