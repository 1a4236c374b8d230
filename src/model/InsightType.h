#pragma once

#include "model/RawValue.h"

#include <QString>
#include <QStringView>

#include <array>

namespace tessarine {

// Kinds of pattern that a scan can point out.
enum class InsightType : quint8 {
    nodeModules,
    duplicateNames,
    oldFiles,
    largeCache,
    emptyFolders,
    hiddenFiles
};

const std::array<InsightType, 6>& allInsightTypes();

// Display text and stored value, e.g. "Node Modules".
QString rawValue(InsightType type);

template <> std::optional<InsightType> fromRawValue<InsightType>(QStringView raw);

} // namespace tessarine
