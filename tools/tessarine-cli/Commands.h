#pragma once

#include <QStringList>

namespace tessarine::cli {

// Each command takes the arguments after its name and returns the process's exit status.
int runScan(const QStringList& arguments);
int runTree(const QStringList& arguments);
int runHistory(const QStringList& arguments);
int runImport(const QStringList& arguments);

// Picks the command named by the first argument (the program's name already removed).
int runCommandLine(const QStringList& arguments);

} // namespace tessarine::cli
