#include "StoredHistory.h"

#include "app/AppState.h"
#include "frames/FrameCost.h"
#include "shell/ShellEngine.h"
#include "storage/PersistenceService.h"
#include "storage/SummaryIndex.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

#include <sys/resource.h>

using namespace tessarine;
using tessarine::bench::makeStoredHistory;

namespace {

constexpr int scanCount = 10'000;
constexpr double frameTargetMs = 32;
const QString historyHome = QStringLiteral("/var/tmp/tessarine-history-bench");
const QStringList scannedFolders{"/usr/share/doc", "/usr/include", "/usr/share/man",
                                 "/usr/share/locale"};

QElapsedTimer sinceStart;

double threadCpuMs() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double median(QList<double> values) {
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

double residentMegabytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    return 0;
}

void verdict(bool pass, const QString& text) {
    std::printf("%s  %s\n", pass ? "PASS" : "MISS", qPrintable(text));
}

// The slowest frame of a series of changes, and the interface thread's processor time over all of
// them: on a busy machine the frames' wall time also counts the other processes' turns.
struct FrameSeries {
    double slowest = 0;
    double slowestCpu = 0;
    double cpu = 0;
    int frames = 0;
    void add(QQuickWindow& window, const std::function<void()>& change) {
        const double before = threadCpuMs();
        slowest = std::max(slowest, nextFrameCost(window, change));
        const double frameCpu = threadCpuMs() - before;
        slowestCpu = std::max(slowestCpu, frameCpu);
        cpu += frameCpu;
        ++frames;
    }
    QString describe(const char* what) const {
        return QStringLiteral("slowest of %1 frames %2: %3 ms (the interface thread's processor "
                              "time: at most %4 ms in one frame, %5 ms in all)")
            .arg(frames)
            .arg(QLatin1String(what))
            .arg(slowest, 0, 'f', 1)
            .arg(slowestCpu, 0, 'f', 1)
            .arg(cpu, 0, 'f', 0);
    }
};

// The application over the history in `home`, its window shown.
struct RunningApp {
    explicit RunningApp(const QString& home)
        : store(home)
        , state(store) {
        AppState::setSharedInstance(&state);
        prepareEngine(engine);
        engine.load(QUrl(QString::fromLatin1(mainWindowUrl)));
        window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
        if (window)
            nextFrameCost(*window, [&] { window->show(); });
    }
    PersistenceService store;
    AppState state;
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
};

// What a start costs: its first frame, and when the rows a start does not show at once (those the
// summary index does not vouch for) have all arrived, with the longest the interface thread was
// unavailable from the first frame until then (the largest gap between the ticks of a 10 ms
// timer).
struct Start {
    double firstFrameMs = 0;
    double allRowsMs = 0;
    double longestStallMs = 0;
};

// Lets the app's events run until `done` or a minute has passed. Sleeps between events: the
// processEvents overload with a time limit drops WaitForMoreEvents, and looping on it kept the
// interface thread busy for as long as the wait lasted, which was counted as the app's own time.
void waitFor(const std::function<bool()>& done) {
    const QDeadlineTimer deadline(60'000);
    QTimer wake; // so that the deadline is looked at while nothing else happens
    wake.start(50);
    while (!done() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// Child mode: prints the start's figures, in milliseconds from the start of the process.
int start(const QString& home, int rows) {
    RunningApp app(home);
    if (!app.window)
        return 1;
    const double firstFrame = double(sinceStart.nsecsElapsed()) / 1e6;
    QElapsedTimer ticks;
    ticks.start();
    double longestStall = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        longestStall = std::max(longestStall, double(ticks.nsecsElapsed()) / 1e6);
        ticks.restart();
    });
    ticker.start(10);
    waitFor([&] { return app.state.scanHistory()->count() >= rows; });
    std::printf("%.1f %.1f %.1f\n", firstFrame, double(sinceStart.nsecsElapsed()) / 1e6,
                longestStall);
    return 0;
}

Start childStart(const QString& home, int rows) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--start"), home, QString::number(rows)});
    child.waitForFinished(600'000);
    const QList<QByteArray> figures = child.readAllStandardOutput().trimmed().split(' ');
    if (figures.size() != 3)
        return {};
    return {figures[0].toDouble(), figures[1].toDouble(), figures[2].toDouble()};
}

// The median start of three by first frame.
Start medianStart(const QString& home, int rows) {
    QList<Start> starts;
    for (int run = 0; run < 3; ++run)
        starts.append(childStart(home, rows));
    std::sort(starts.begin(), starts.end(),
              [](const Start& a, const Start& b) { return a.firstFrameMs < b.firstFrameMs; });
    return starts.at(1);
}

QProcessEnvironment historyEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), historyHome);
    return environment;
}

double childrenCpuMs() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto ms = [](const timeval& time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

// Wall and processor milliseconds of one `tessarine-cli history`.
std::pair<double, double> cliHistoryMs(const QString& cli) {
    QProcess run;
    run.setProcessEnvironment(historyEnvironment());
    run.setStandardOutputFile(QProcess::nullDevice());
    const double cpuBefore = childrenCpuMs();
    QElapsedTimer clock;
    clock.start();
    run.start(cli, {QStringLiteral("history")});
    run.waitForFinished(600'000);
    return {double(clock.nsecsElapsed()) / 1e6, childrenCpuMs() - cpuBefore};
}

// A scan saved by the command line while the app shows the history: the interface thread's CPU
// time from the save's start to the new row's frame, and the time from the file's writing to
// that frame.
std::pair<double, double> cliSaveCost(RunningApp& app, const QString& cli) {
    ScanHistoryModel& history = *app.state.scanHistory();
    const int before = history.count();
    QProcess save;
    save.setProcessEnvironment(historyEnvironment());
    save.setStandardOutputFile(QProcess::nullDevice());
    save.start(cli, {QStringLiteral("scan"), QStringLiteral("--save"), scannedFolders.first()});
    // Starting the process is the benchmark's work, not the app's.
    save.waitForStarted();
    const double cpuBefore = threadCpuMs();
    waitFor([&] { return history.count() > before; });
    nextFrameCost(*app.window, [] {});
    const double shownAt = double(QDateTime::currentMSecsSinceEpoch());
    const double cpu = threadCpuMs() - cpuBefore;
    save.waitForFinished();
    const QString file = app.store.historyFilePath(history.results().first().id);
    const double writtenAt = double(QFileInfo(file).lastModified().toMSecsSinceEpoch());
    app.store.deleteResult(history.results().first().id);
    waitFor([&] { return history.count() == before; });
    return {cpu, shownAt - writtenAt};
}

} // namespace

int main(int argc, char* argv[]) {
    sinceStart.start();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    prepareShell();
    const QStringList arguments = application.arguments();
    if (arguments.size() == 4 && arguments.at(1) == u"--start")
        return start(arguments.at(2), arguments.at(3).toInt());
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: %s TESSARINE_CLI\n", argv[0]);
        return 2;
    }
    const QString cli = arguments.at(1);

    std::printf("history: %d stored scans of %s, copied under new ids, backend %s\n", scanCount,
                qPrintable(scannedFolders.join(u", ")),
                qPrintable(QQuickWindow::sceneGraphBackend()));
    QElapsedTimer clock;
    clock.start();
    if (!makeStoredHistory(historyHome, scannedFolders, scanCount)) {
        std::fprintf(stderr, "cannot make the history in %s\n", qPrintable(historyHome));
        return 1;
    }
    std::printf("  history ready in %.1f s (made once, then kept in %s)\n",
                double(clock.elapsed()) / 1e3, qPrintable(historyHome));
    const QString folder = QDir(historyHome).filePath(QStringLiteral("Tessarine"));

    QTemporaryDir emptyHome;
    const Start empty = medianStart(emptyHome.path(), 0);
    QFile::remove(summaryIndexPath(folder));
    const Start cold = childStart(historyHome, scanCount);
    const Start warm = medianStart(historyHome, scanCount);
    std::printf("  first frame: empty history %.0f ms, warm index %.0f ms (median of 3), no index "
                "%.0f ms\n",
                empty.firstFrameMs, warm.firstFrameMs, cold.firstFrameMs);
    verdict(warm.firstFrameMs <= 1.5 * empty.firstFrameMs,
            QStringLiteral("first frame with a warm index <= 1.5 x an empty history (%1 x)")
                .arg(warm.firstFrameMs / empty.firstFrameMs, 0, 'f', 2));
    verdict(cold.firstFrameMs <= 1.5 * empty.firstFrameMs,
            QStringLiteral("first frame without an index <= 1.5 x an empty history (%1 x); all "
                           "%2 rows after %3 s")
                .arg(cold.firstFrameMs / empty.firstFrameMs, 0, 'f', 2)
                .arg(scanCount)
                .arg(cold.allRowsMs / 1e3, 0, 'f', 1));
    verdict(std::max(cold.longestStallMs, warm.longestStallMs) <= 200,
            QStringLiteral("the interface thread held up <= 200 ms while the rows arrive "
                           "(longest: %1 ms without an index, %2 ms with a warm one)")
                .arg(cold.longestStallMs, 0, 'f', 0)
                .arg(warm.longestStallMs, 0, 'f', 0));

    cliHistoryMs(cli);
    QList<double> listing, listingCpu;
    for (int run = 0; run < 3; ++run) {
        const auto [wall, cpu] = cliHistoryMs(cli);
        listing.append(wall);
        listingCpu.append(cpu);
    }
    verdict(median(listing) < 500,
            QStringLiteral("tessarine-cli history with a warm index < 500 ms (median of 3: %1 ms, "
                           "of which %2 ms on a processor)")
                .arg(median(listing), 0, 'f', 0)
                .arg(median(listingCpu), 0, 'f', 0));

    RunningApp app(historyHome);
    if (!app.window)
        return 1;
    app.state.setCurrentView(AppState::History);
    auto* list = app.window->findChild<QQuickItem*>(QStringLiteral("historyList"));
    auto* scans = app.window->findChild<QObject*>(QStringLiteral("historyScans"));
    if (!list || !scans)
        return 1;
    nextFrameCost(*app.window, [] {});

    FrameSeries scrolling, searching, sorting;
    for (qreal y = 0; y < 84 * 200; y += 84 / 3.0)
        scrolling.add(*app.window, [&] { list->setProperty("contentY", y); });
    for (const QString& text : {QStringLiteral("d"), QStringLiteral("do"), QStringLiteral("doc"),
                                QStringLiteral("include"), QString()})
        searching.add(*app.window, [&] { scans->setProperty("searchText", text); });
    for (int order : {4, 2, 3, 1, 0})
        sorting.add(*app.window, [&] { scans->setProperty("sortOrder", order); });
    const double memory = residentMegabytes();

    double slowestCpu = 0, slowestLatency = 0;
    for (int run = 0; run < 3; ++run) {
        const auto [cpu, latency] = cliSaveCost(app, cli);
        slowestCpu = std::max(slowestCpu, cpu);
        slowestLatency = std::max(slowestLatency, latency);
    }
    verdict(slowestCpu <= 200,
            QStringLiteral("a scan saved by tessarine-cli: interface thread <= 200 ms (worst of "
                           "3: %1 ms)")
                .arg(slowestCpu, 0, 'f', 0));
    verdict(slowestLatency <= 500,
            QStringLiteral("  ... its row shown within 500 ms of the file's writing (worst of 3: "
                           "%1 ms)")
                .arg(slowestLatency, 0, 'f', 0));
    verdict(memory < 200, QStringLiteral("app memory with the history shown < 200 MB (%1 MB)")
                              .arg(memory, 0, 'f', 0));
    verdict(scrolling.slowest <= frameTargetMs, scrolling.describe("scrolling the history"));
    verdict(searching.slowest <= frameTargetMs, searching.describe("searching it"));
    verdict(sorting.slowest <= frameTargetMs, sorting.describe("changing its order"));
    return 0;
}
