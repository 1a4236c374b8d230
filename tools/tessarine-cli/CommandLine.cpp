#include "Commands.h"

#include "Arguments.h"
#include "Usage.h"

#include <array>
#include <utility>

namespace tessarine::cli {

namespace {

using Command = int (*)(const QStringList&);

constexpr std::array<std::pair<const char16_t*, Command>, 4> commands{{
    {u"scan", runScan},
    {u"tree", runTree},
    {u"history", runHistory},
    {u"import", runImport},
}};

} // namespace

int runCommandLine(const QStringList& arguments) {
    if (asksForHelp(arguments) || arguments.value(0) == u"help")
        return printUsage();
    if (arguments.value(0) == u"--version")
        return printVersion();
    if (arguments.isEmpty())
        return usageError(QStringLiteral("Missing command"));
    for (const auto& [name, command] : commands) {
        if (arguments.first() == QStringView(name))
            return command(arguments.mid(1));
    }
    return usageError(QStringLiteral("Unknown command: ") + arguments.first());
}

} // namespace tessarine::cli
