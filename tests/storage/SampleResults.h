#pragma once

#include "model/Records.h"

#include <QDateTime>
#include <QString>

namespace tessarine::testing {

// A file of the largest-files list, modified at a fixed moment.
FileInfo sampleFile(const QString& path, qint64 size, const QString& extension,
                    FileCategory category);

// A fully populated result, every kind of member filled, as a finished scan would store it.
AnalysisResult sampleResult(const QDateTime& scanDate);

} // namespace tessarine::testing
