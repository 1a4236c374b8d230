// tessarine-cli: scans and the scan history from the command line, for scripts and timers.

#include "Commands.h"
#include "StandardStreams.h"

#include "model/WorkerThread.h"

#include <QCoreApplication>

#include <csignal>

int main(int argc, char** argv) {
    using namespace tessarine::cli;
    // A reader that goes away (`| head`) is reported as a write error instead of killing silently.
    std::signal(SIGPIPE, SIG_IGN);
    reserveStandardOutput();

    QCoreApplication application(argc, argv);
    return tessarine::leaveProcess(runCommandLine(QCoreApplication::arguments().mid(1)));
}
