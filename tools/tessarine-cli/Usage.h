#pragma once

#include <QString>

namespace tessarine::cli {

// --help: the usage on standard output, exit status 0 (or 1 if it cannot be written).
int printUsage();

// --version: "tessarine-cli" and the release on standard output, exit status 0 (or 1).
int printVersion();

// Bad usage: what was wrong and the usage, on standard error; exit status 2.
int usageError(const QString& problem);

} // namespace tessarine::cli
