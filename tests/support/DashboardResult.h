#pragma once

#include "model/Records.h"

#include <QString>

namespace tessarine::testing {

// A result of nothing but its root, its date and its size, as a history lists it.
AnalysisResult plainResult(const QString& root, const QDateTime& scanDate, qint64 totalSize = 1000);

// A result as full as a dashboard shows, everything adding up to totalSize: categories of falling
// sizes (at most twelve), extensions spread over them, depth levels peaking a few levels down,
// and largest files under root with varied names, dates and depths.
AnalysisResult dashboardResult(const QString& root, int categories, int extensions, int depths,
                               int files);

// Two insights: one that weighs 150 MB and one that weighs nothing, which states no size.
QList<PatternInsight> sampleInsights();

} // namespace tessarine::testing
