#pragma once

#include "import/ImportError.h"
#include "model/Records.h"

#include <QByteArrayView>
#include <QString>

#include <functional>
#include <variant>

namespace tessarine {

using ImportOutcome = std::variant<AnalysisResult, ImportError>;

// Turns a scan made elsewhere into a result, as a scan of that tree here would have made it: an
// ncdu JSON export goes through the same analysis and folder tree passes as a walk of the disk
// (the analysis as the export is read), and keeps its folder tree in the result, so the folder
// views never look for that path on this machine; a result written by Tessarine (a history file, or
// `tessarine-cli scan` output) is taken as it is, under a new id. Either is marked with where it
// came from and which of its fields the file could not give. `sourceName` is recorded as the file's
// name. `bytes` are read once, before the folder tree is built; `onRead` is then told, so a caller
// can give their memory back before the tree takes its own.
ImportOutcome importScan(QByteArrayView bytes, const QString& sourceName,
                         const std::function<void()>& onRead = {});

// The same for a file ("-" for standard input), whose text is let go as soon as it is read.
ImportOutcome importScanFile(const QString& path);

} // namespace tessarine
