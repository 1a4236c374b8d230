// tessarine-cli: scans and the scan history from the command line, for scripts and timers.

#include "Commands.h"
#include "StandardStreams.h"

#include "model/PathBytes.h"
#include "model/WorkerThread.h"

#include <QCoreApplication>

#include <csignal>

int main(int argc, char** argv) {
    using namespace tessarine::cli;
    // A reader that goes away (`| head`) is reported as a write error instead of killing silently.
    std::signal(SIGPIPE, SIG_IGN);
    reserveStandardOutput();

    QCoreApplication application(argc, argv);
    // Not QCoreApplication::arguments(), which loses the bytes of a folder name that is not UTF-8.
    return tessarine::leaveProcess(
        runCommandLine(tessarine::argumentsFromBytes(argc, argv).mid(1)));
}
