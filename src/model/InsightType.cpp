#include "model/InsightType.h"

#include "model/RawValueTable.h"

namespace tessarine {

namespace {

constexpr std::array<QStringView, 6> insightNames = {
    u"Node Modules", u"Duplicate Names", u"Old Files",
    u"Large Cache",  u"Empty Folders",   u"Hidden Files",
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
