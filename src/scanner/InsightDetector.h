#pragma once

#include "model/Records.h"

#include <QHash>
#include <QList>
#include <QString>

#include <map>

namespace tessarine {

// The patterns a finished scan points out, judged from its aggregates alone (never from single
// files), in this order: many JavaScript/JSON files, files nested deeper than ten levels, large
// cache and temporary files. Each rule adds at most one insight.
QList<PatternInsight> detectInsights(const QHash<QString, ExtensionStats>& extensions,
                                     const std::map<qint64, DepthStats>& depths, qint64 totalSize);

} // namespace tessarine
