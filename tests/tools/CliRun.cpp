#include "CliRun.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <csignal>

namespace tessarine::test {

namespace {

QString dataHome() {
    static QTemporaryDir fallback;
    if (qEnvironmentVariableIsEmpty("XDG_DATA_HOME"))
        qputenv("XDG_DATA_HOME", fallback.path().toUtf8());
    return qEnvironmentVariable("XDG_DATA_HOME");
}

} // namespace

CliOptions CliOptions::inFolder(const QString& folder) {
    CliOptions options;
    options.workingDirectory = folder;
    return options;
}

CliOptions CliOptions::writingTo(const QString& file) {
    CliOptions options;
    options.outputFile = file;
    return options;
}

CliOptions CliOptions::interruptedAfter(int milliseconds) {
    CliOptions options;
    options.interruptAfterMs = milliseconds;
    return options;
}

QString historyDirectory() {
    return QDir(dataHome()).filePath(QStringLiteral("Tessarine"));
}

CliRun runCli(const QStringList& arguments, const CliOptions& options) {
    dataHome();
    QProcess process;
    process.setProgram(QStringLiteral(TESSARINE_CLI_PATH));
    process.setArguments(arguments);
    if (!options.workingDirectory.isEmpty())
        process.setWorkingDirectory(options.workingDirectory);
    if (!options.outputFile.isEmpty())
        process.setStandardOutputFile(options.outputFile);
    process.start();
    if (!process.waitForStarted()) {
        qWarning("cannot start %s", TESSARINE_CLI_PATH);
        return {};
    }
    if (options.interruptAfterMs >= 0) {
        QThread::msleep(options.interruptAfterMs);
        ::kill(pid_t(process.processId()), SIGINT);
    }
    process.waitForFinished(-1);
    return {process.exitCode(), process.exitStatus() == QProcess::CrashExit,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

std::optional<CliRun> runCliInterrupted(const QStringList& arguments) {
    // Steps small enough to land inside a run that is short on a fast machine.
    for (int delay = 5; delay < 1000; delay += delay / 3) {
        CliRun run = runCli(arguments, CliOptions::interruptedAfter(delay));
        if (run.crashed)
            continue; // too early: the handler was not installed yet
        if (run.exitCode == 0)
            return std::nullopt; // too late, and later attempts would be later still
        return run;
    }
    return std::nullopt;
}

} // namespace tessarine::test
