#pragma once

#include "model/InsightType.h"

#include <QString>

namespace tessarine {

// Symbol and Theme colour name of each kind of insight card.
QString insightSymbol(InsightType type);
QString insightColor(InsightType type);

} // namespace tessarine
