#pragma once

#include "Arguments.h"

#include "model/ScanOptions.h"

#include <QStringList>

namespace tessarine::cli {

// --hidden, --one-file-system and --disk-usage, which scan and tree both take.
const QStringList& scanOptionNames();
ScanOptions scanOptionsOf(const Arguments& arguments);

} // namespace tessarine::cli
