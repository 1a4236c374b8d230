#include "ResponsivenessProbe.h"

#include "app/AppState.h"
#include "shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace tessarine;

namespace {

constexpr qint64 gapTargetMs = 250;
constexpr qint64 stallTargetMs = 50;
constexpr double cliRatioTarget = 1.2;
// Scans of each kind, taken in turns so that both see the same load on the machine.
constexpr int rounds = 3;

void printVerdict(qint64 value, qint64 limit, const char* what) {
    std::printf("%s  %s <= %lld ms (%lld ms)\n", value <= limit ? "PASS" : "MISS", what,
                static_cast<long long>(limit), static_cast<long long>(value));
}

// Lets the window draw whatever it has to before a measurement starts.
void settle() {
    QEventLoop loop;
    QTimer::singleShot(500, &loop, &QEventLoop::quit);
    loop.exec();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

// Runs `tessarine-cli scan FOLDER` with its report thrown away; returns its wall time in seconds,
// or a negative number when it failed.
double timeCommandLineScan(const QString& cli, const QString& folder) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer clock;
    clock.start();
    process.start(cli, {QStringLiteral("scan"), folder});
    const bool finished = process.waitForFinished(-1);
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    return finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
               ? seconds
               : -1;
}

} // namespace

// tessarine-responsiveness FOLDER [TESSARINE_CLI]: scans FOLDER with the main window up
// (offscreen) and reports the interface's longest wait for progress, its longest event-loop stall
// and the scan's time; given the command-line program, the time of its scan of the same folder
// beside it.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication app(argc, argv);
    if (argc != 2 && argc != 3) {
        std::fprintf(stderr, "usage: tessarine-responsiveness FOLDER [TESSARINE_CLI]\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QString cli = argc == 3 ? QString::fromLocal8Bit(argv[2]) : QString();
    prepareShell();

    // The scan's result is saved, so it goes to a history of its own, never the user's.
    QTemporaryDir history;
    PersistenceService store(history.path());
    AppState state(store);
    AppState::setSharedInstance(&state);
    QQmlApplicationEngine engine;
    prepareEngine(engine);
    engine.load(QUrl(QString::fromLatin1(mainWindowUrl)));
    if (engine.rootObjects().isEmpty())
        return 1;

    ResponsivenessProbe probe(state);
    std::vector<double> appSeconds, screenSeconds, cliSeconds;
    for (int round = 0; round < rounds; ++round) {
        // Every scan starts from the landing screen, as a user's first one does: the window's
        // first frames, and taking down the last scan's dashboard, are not the scan's to answer.
        state.setCurrentView(AppState::Landing);
        settle();
        probe.scan(folder);
        if (state.hasError()) {
            std::fprintf(stderr, "%s\n", qPrintable(state.error()->errorDescription()));
            return 1;
        }
        appSeconds.push_back(probe.seconds());
        screenSeconds.push_back(probe.followingScreenSeconds());
        if (cli.isEmpty())
            continue;
        cliSeconds.push_back(timeCommandLineScan(cli, folder));
        if (cliSeconds.back() < 0) {
            std::fprintf(stderr, "%s scan failed\n", qPrintable(cli));
            return 1;
        }
    }
    std::printf("app scan: %lld files, median of %d scans %.2f s (then %.2f s to build the "
                "dashboard), %d progress updates in all\n",
                static_cast<long long>(state.currentResultOrEmpty().fileCount), rounds,
                median(appSeconds), median(screenSeconds), probe.progressUpdates());
    if (!cliSeconds.empty()) {
        const double ratio = median(appSeconds) / median(cliSeconds);
        std::printf("tessarine-cli scan: median of %d runs %.2f s, taken in turns with the app's\n",
                    rounds, median(cliSeconds));
        std::printf("%s  app scan <= %.1f x tessarine-cli scan (%.2f)\n",
                    ratio <= cliRatioTarget ? "PASS" : "MISS", cliRatioTarget, ratio);
    }
    printVerdict(probe.longestProgressGapMs(), gapTargetMs, "longest gap between progress updates");
    printVerdict(probe.longestStallMs(), stallTargetMs, "longest event-loop stall");
    return 0;
}
