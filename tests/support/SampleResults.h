#pragma once

#include "model/Records.h"

#include <QDateTime>
#include <QString>

namespace tessarine::testing {

// A file of the largest-files list, at the depth its path gives below a root one level down,
// last modified on 31 December 2023.
FileInfo sampleFile(const QString& path, qint64 size, const QString& extension,
                    FileCategory category);

// A result that uses every member: a nested folder tree, a folder among the largest files, the
// empty extension, depths that sort differently as text and as numbers, integers beyond 2^53 and
// at both ends of 64 bits, path text that needs escaping (quotes, control characters, text
// outside the basic plane), and where it was imported from. Each member value occurs once in the
// encoded form, so a test can edit exactly one spot of it.
AnalysisResult sampleResult(const QDateTime& scanDate = QDateTime(QDate(2024, 3, 5),
                                                                  QTime(14, 7, 9), Qt::UTC));

} // namespace tessarine::testing
