#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace tessarine::testing {

// What one run of tessarine-cli left behind.
struct CliRun {
    int exitCode = -1;
    bool crashed = false; // ended by a signal rather than by exiting
    QByteArray output;
    QByteArray errors;

    QString errorText() const { return QString::fromUtf8(errors); }
};

struct CliOptions {
    QString workingDirectory{};
    QString outputFile{}; // standard output goes here instead of being captured
    QString inputFile{};  // standard input comes from here instead of nothing
};

// Runs the built program to its end. The child inherits the test's XDG_DATA_HOME, so it uses the
// test's own scan history; a test run outside CTest gets a temporary one instead of the real one.
CliRun runCli(const QStringList& arguments, const CliOptions& options = {});

// Runs the program and sends it Ctrl-C (SIGINT) as soon as it catches that signal, that is once
// its work is under way, and `underWay` (when given) has returned true. None when the program
// ended before that.
std::optional<CliRun> runCliInterrupted(const QStringList& arguments,
                                        const std::function<bool()>& underWay = {});

// The history folder the program uses in this test.
QString historyDirectory();

} // namespace tessarine::testing
