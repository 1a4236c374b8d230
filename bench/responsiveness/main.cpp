#include "ResponsivenessProbe.h"

#include "app/AppState.h"
#include "app/shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

using namespace tessarine;

namespace {

constexpr qint64 gapTargetMs = 250;
constexpr qint64 stallTargetMs = 50;

void printVerdict(qint64 value, qint64 limit, const char* what) {
    std::printf("%s  %s <= %lld ms (%lld ms)\n", value <= limit ? "PASS" : "MISS", what,
                static_cast<long long>(limit), static_cast<long long>(value));
}

} // namespace

// tessarine-responsiveness FOLDER: scans FOLDER with the main window up (offscreen) and reports
// the interface's longest wait for progress and its longest event-loop stall.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: tessarine-responsiveness FOLDER\n");
        return 2;
    }
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

    // The window's first frames are start-up cost, not responsiveness during a scan.
    QEventLoop settle;
    QTimer::singleShot(500, &settle, &QEventLoop::quit);
    settle.exec();

    ResponsivenessProbe probe(state);
    probe.scan(QString::fromLocal8Bit(argv[1]));
    if (state.hasError()) {
        std::fprintf(stderr, "%s\n", qPrintable(state.error()->errorDescription()));
        return 1;
    }
    std::printf("scan: %lld files in %.2f s, %d progress updates\n",
                static_cast<long long>(state.currentResultOrEmpty().fileCount), probe.seconds(),
                probe.progressUpdates());
    printVerdict(probe.longestProgressGapMs(), gapTargetMs, "longest gap between progress updates");
    printVerdict(probe.longestStallMs(), stallTargetMs, "longest event-loop stall");
    return 0;
}
