#include "Arguments.h"

#include "Usage.h"

namespace tessarine::cli {

namespace {

const QString endOfOptions = QStringLiteral("--");

// "-" alone is a name, not an option.
bool looksLikeOption(const QString& argument) {
    return argument.size() > 1 && argument.startsWith(u'-');
}

} // namespace

std::optional<Arguments> parseArguments(const QStringList& arguments,
                                        const QStringList& knownOptions, QString* problem) {
    Arguments parsed;
    bool optionsEnded = false;
    for (const QString& argument : arguments) {
        if (optionsEnded || !looksLikeOption(argument)) {
            parsed.positional.append(argument);
        } else if (argument == endOfOptions) {
            optionsEnded = true;
        } else if (knownOptions.contains(argument)) {
            parsed.options.insert(argument);
        } else {
            *problem = QStringLiteral("Unknown option: ") + argument;
            return std::nullopt;
        }
    }
    return parsed;
}

std::variant<Arguments, int> parseFolderCommand(const QStringList& arguments,
                                                const QStringList& knownOptions,
                                                const QString& commandName) {
    QString problem;
    auto parsed = parseArguments(arguments, knownOptions, &problem);
    if (!parsed)
        return usageError(problem);
    if (parsed->positional.size() != 1)
        return usageError(commandName + QStringLiteral(" needs exactly one FOLDER"));
    return std::move(*parsed);
}

bool asksForHelp(const QStringList& arguments) {
    for (const QString& argument : arguments) {
        if (argument == endOfOptions)
            return false;
        if (argument == u"--help" || argument == u"-h")
            return true;
    }
    return false;
}

} // namespace tessarine::cli
