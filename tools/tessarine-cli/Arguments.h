#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace tessarine::cli {

// A command's arguments, split into the options it knows and the rest.
struct Arguments {
    QStringList positional;
    QSet<QString> options;

    bool has(const QString& option) const { return options.contains(option); }
};

// Options may come before or after the positional arguments; "--" ends them, so that a folder
// named "--csv" can still be given. An unknown option gives nullopt and its text in *problem.
std::optional<Arguments> parseArguments(const QStringList& arguments,
                                        const QStringList& knownOptions, QString* problem);

// The arguments of a command that takes exactly one FOLDER, or, on bad usage, the exit status
// after the usage was printed.
std::variant<Arguments, int> parseFolderCommand(const QStringList& arguments,
                                                const QStringList& knownOptions,
                                                const QString& commandName);

// Whether the user asked for help anywhere before "--".
bool asksForHelp(const QStringList& arguments);

} // namespace tessarine::cli
