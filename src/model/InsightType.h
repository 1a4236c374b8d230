#pragma once

#include "model/RawValue.h"
#include "model/RecordEnums.h"

#include <QString>
#include <QStringView>

#include <array>

namespace tessarine {

const std::array<InsightType, 6>& allInsightTypes();

// Display text and stored value, e.g. "Node Modules".
QString rawValue(InsightType type);

template <> std::optional<InsightType> fromRawValue<InsightType>(QStringView raw);

} // namespace tessarine
