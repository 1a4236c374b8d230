#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tessarine {

// What `tessarine [FOLDER]` was asked to do.
struct LaunchOptions {
    enum class Action {
        OpenWindow,
        // Help or version: `text` goes to standard output, and the program ends successfully.
        PrintAndExit,
        // Bad usage: `text` says what was wrong and goes to standard error.
        FailWithUsage,
    };

    Action action = Action::OpenWindow;
    // The folder to scan as soon as the window opens, as an absolute path. Whether it exists is
    // the scan's business: a wrong folder shows the scan's own error in the window.
    std::optional<QString> folder;
    QString text;
};

// Reads the arguments the way QCoreApplication::arguments() gives them (the program first). A
// relative FOLDER is taken from workingDirectory; a file URL, as some file managers pass, is
// read as its local path.
LaunchOptions parseLaunchArguments(const QStringList& arguments, const QString& workingDirectory);

} // namespace tessarine
