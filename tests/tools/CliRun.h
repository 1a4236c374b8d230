#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace tessarine::test {

// What one run of tessarine-cli left behind.
struct CliRun {
    int exitCode = -1;
    bool crashed = false; // ended by a signal rather than by exiting
    QByteArray output;
    QByteArray errors;

    QString errorText() const { return QString::fromUtf8(errors); }
};

struct CliOptions {
    QString workingDirectory;
    QString outputFile;        // standard output goes here instead of being captured
    int interruptAfterMs = -1; // sends Ctrl-C (SIGINT) this long after the start

    static CliOptions inFolder(const QString& folder);
    static CliOptions writingTo(const QString& file);
    static CliOptions interruptedAfter(int milliseconds);
};

// Runs the built program to its end. The child inherits the test's XDG_DATA_HOME, so it uses the
// test's own scan history; a test run outside CTest gets a temporary one instead of the real one.
CliRun runCli(const QStringList& arguments, const CliOptions& options = {});

// Runs the program with Ctrl-C sent after growing delays until one lands while the work is under
// way, and returns that run. None when the work always finished first, or the signal always came
// before the program could catch it: the caller then skips rather than guesses.
std::optional<CliRun> runCliInterrupted(const QStringList& arguments);

// The history folder the program uses in this test.
QString historyDirectory();

} // namespace tessarine::test
