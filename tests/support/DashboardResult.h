#pragma once

#include "model/Records.h"

#include <QString>

namespace tessarine::testing {

// A result as full as a dashboard shows: categories of falling sizes (at most all twelve),
// extensions spread over them, depth levels shaped like a real tree (few files at the top, a peak a
// few levels down), and largest files under root with varied names, dates and depths. Everything
// adds up: the categories' and the extensions' sizes sum to totalSize.
AnalysisResult dashboardResult(const QString& root, int categories, int extensions, int depths,
                               int files);

} // namespace tessarine::testing
