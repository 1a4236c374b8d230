#include "CliRun.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

namespace tessarine::testing {

namespace {

QString dataHome() {
    static QTemporaryDir fallback;
    if (qEnvironmentVariableIsEmpty("XDG_DATA_HOME"))
        qputenv("XDG_DATA_HOME", fallback.path().toUtf8());
    return qEnvironmentVariable("XDG_DATA_HOME");
}

bool start(QProcess& process, const QStringList& arguments, const CliOptions& options) {
    dataHome();
    process.setProgram(QStringLiteral(TESSARINE_CLI_PATH));
    process.setArguments(arguments);
    if (!options.workingDirectory.isEmpty())
        process.setWorkingDirectory(options.workingDirectory);
    if (!options.outputFile.isEmpty())
        process.setStandardOutputFile(options.outputFile);
    if (!options.inputFile.isEmpty())
        process.setStandardInputFile(options.inputFile);
    process.start();
    if (process.waitForStarted())
        return true;
    qWarning("cannot start %s", TESSARINE_CLI_PATH);
    return false;
}

CliRun finish(QProcess& process) {
    process.waitForFinished(-1);
    return {process.exitCode(), process.exitStatus() == QProcess::CrashExit,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

// Whether the process has a handler of its own for SIGINT: the "SigCgt" mask of its status.
bool catchesInterrupt(qint64 pid) {
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("SigCgt:"))
            return line.mid(7).trimmed().toULongLong(nullptr, 16) & (1ULL << (SIGINT - 1));
    }
    return false;
}

} // namespace

QString historyDirectory() {
    return QDir(dataHome()).filePath(QStringLiteral("Tessarine"));
}

CliRun runCli(const QStringList& arguments, const CliOptions& options) {
    QProcess process;
    if (!start(process, arguments, options))
        return {};
    return finish(process);
}

std::optional<CliRun> runCliInterrupted(const QStringList& arguments,
                                        const std::function<bool()>& underWay) {
    QProcess process;
    if (!start(process, arguments, {}))
        return std::nullopt;
    while (!catchesInterrupt(process.processId()) || (underWay && !underWay())) {
        if (process.waitForFinished(1))
            return std::nullopt;
    }
    ::kill(pid_t(process.processId()), SIGINT);
    CliRun run = finish(process);
    // Killed by the signal: the work ended and dropped its handler just before Ctrl-C came.
    if (run.crashed)
        return std::nullopt;
    return run;
}

} // namespace tessarine::testing
