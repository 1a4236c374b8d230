#include "RealWindow.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>
#include <QTest>

#include <cstdlib>

namespace tessarine::testing {

VirtualDisplay::VirtualDisplay() {
    // Xvfb picks the first free display and writes its number to the descriptor it is given,
    // here its own standard output: tests running side by side never meet.
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1400x1000x24"),
                    QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    if (!m_server.waitForStarted())
        return;
    const QDeadlineTimer deadline(20'000);
    while (!m_server.canReadLine() && !deadline.hasExpired() &&
           m_server.state() == QProcess::Running)
        m_server.waitForReadyRead(100);
    const QByteArray number = m_server.readLine().trimmed();
    if (!number.isEmpty())
        m_name = QLatin1Char(':') + QString::fromLatin1(number);
}

VirtualDisplay::~VirtualDisplay() {
    m_server.terminate();
    m_server.waitForFinished();
}

bool waitUntil(const std::function<bool()>& condition, int timeoutMs) {
    return QTest::qWaitFor(condition, timeoutMs);
}

RealApp::RealApp(QStringList arguments)
    : m_arguments(std::move(arguments))
    , m_probeName(m_home.filePath(QStringLiteral("probe"))) {
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
}

RealApp::~RealApp() {
    m_probe.abort();
    m_process.terminate();
    if (!m_process.waitForFinished(5'000))
        m_process.kill();
    m_process.waitForFinished();
}

bool RealApp::start() {
    // Started again, the program answers on a new connection.
    m_probe.abort();
    QDir home(m_home.path());
    for (const char* folder : {"data", "config", "cache", "runtime"})
        home.mkdir(QLatin1String(folder));
    QFile::setPermissions(home.filePath(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), home.filePath(QStringLiteral("cache")));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.filePath(QStringLiteral("runtime")));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    // What machines without a graphics card draw with, continuous integration among them.
    environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(TESSARINE_PROBE_PLUGINS));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"),
                       QStringLiteral("tessarineprobe:") + m_probeName);
    m_process.setProcessEnvironment(environment);
    m_process.start(QStringLiteral(TESSARINE_APP_BINARY), m_arguments);
    if (!m_process.waitForStarted())
        return false;
    return waitUntil(
               [this] {
                   if (m_process.state() != QProcess::Running)
                       return true;
                   m_probe.connectToServer(m_probeName);
                   return m_probe.waitForConnected(100);
               },
               20'000) &&
           m_probe.state() == QLocalSocket::ConnectedState;
}

QJsonObject RealApp::ask(const QString& request) {
    m_probe.write(request.toUtf8() + '\n');
    const QDeadlineTimer deadline(10'000);
    while (!m_probe.canReadLine() && !deadline.hasExpired() &&
           m_probe.state() == QLocalSocket::ConnectedState)
        m_probe.waitForReadyRead(100);
    return QJsonDocument::fromJson(m_probe.readLine()).object();
}

QList<RealApp::Shown> RealApp::findAll(const QString& name) {
    QList<Shown> items;
    for (const QJsonValue& value : ask(QStringLiteral("find ") + name)[u"rects"].toArray()) {
        const QJsonArray rect = value.toArray();
        items.append({QRect(rect[0].toInt(), rect[1].toInt(), rect[2].toInt(), rect[3].toInt()),
                      rect[4].toBool()});
    }
    return items;
}

QRect RealApp::find(const QString& name) {
    const QList<Shown> items = findAll(name);
    return items.isEmpty() ? QRect() : items.first().rect;
}

QRect RealApp::scrollTo(const QString& name, QPoint over, Direction direction, Showing showing) {
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    int turnsWithoutChange = 0;
    const QDeadlineTimer deadline(30'000);
    while (!deadline.hasExpired()) {
        // A control found while the page still glides would be somewhere else by the click.
        waitUntilStill(screen);
        for (const Shown& item : findAll(name)) {
            if (item.whole || showing == Showing::Partly)
                return item.rect;
        }
        const QImage before = grab(screen);
        wheel(over, direction == Direction::Down ? 1 : -1);
        // The page moves once the program gets to the wheel, which may be after a first look.
        // Three turns without a change: the page has reached its end.
        if (waitUntil([&] { return grab(screen) != before; }, 2'000))
            turnsWithoutChange = 0;
        else if (++turnsWithoutChange == 3)
            return {};
    }
    return {};
}

bool RealApp::waitUntilStill(const QRect& rect, int timeoutMs) {
    QImage last;
    const QDeadlineTimer deadline(timeoutMs);
    while (!deadline.hasExpired()) {
        const QImage next = grab(rect);
        if (next == last)
            return true;
        last = next;
        // Two looks a few frames apart.
        QTest::qWait(80);
    }
    return false;
}

QRect RealApp::waitFor(const QString& name, int timeoutMs) {
    QRect rect;
    waitUntil([&] { return !(rect = find(name)).isEmpty(); }, timeoutMs);
    return rect;
}

bool RealApp::waitUntilGone(const QString& name, int timeoutMs) {
    return waitUntil([&] { return find(name).isEmpty(); }, timeoutMs);
}

void RealApp::xdotool(const QStringList& arguments) {
    QProcess::execute(QStringLiteral("xdotool"), arguments);
}

void RealApp::moveTo(QPoint point) {
    // --sync waits until the pointer has moved, which it never does when it is there already.
    if (point == m_pointer)
        return;
    xdotool({QStringLiteral("mousemove"), QStringLiteral("--sync"), QString::number(point.x()),
             QString::number(point.y())});
    m_pointer = point;
}

void RealApp::click(QPoint point) {
    moveTo(point);
    xdotool({QStringLiteral("click"), QStringLiteral("1")});
}

void RealApp::doubleClick(QPoint point) {
    moveTo(point);
    xdotool({QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
             QStringLiteral("--delay"), QStringLiteral("60"), QStringLiteral("1")});
}

bool RealApp::click(const QString& name) {
    const QRect rect = waitFor(name);
    if (rect.isEmpty())
        return false;
    click(rect.center());
    return true;
}

void RealApp::wheel(QPoint point, int steps) {
    moveTo(point);
    // X reports the wheel as buttons 4 (up) and 5 (down).
    xdotool({QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(std::abs(steps)),
             QStringLiteral("--delay"), QStringLiteral("30"),
             steps > 0 ? QStringLiteral("5") : QStringLiteral("4")});
}

void RealApp::key(const QString& keys) {
    xdotool({QStringLiteral("key"), keys});
}

void RealApp::type(const QString& text) {
    xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("20"), text});
}

QImage RealApp::grab(const QRect& rect) const {
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, rect.x(), rect.y(), rect.width(), rect.height())
        .toImage();
}

void RealApp::screenshot(const QString& name) const {
    QDir().mkpath(QStringLiteral(TESSARINE_REALWINDOW_DIR));
    grab(QGuiApplication::primaryScreen()->geometry())
        .save(QStringLiteral(TESSARINE_REALWINDOW_DIR "/") + name + QStringLiteral(".png"));
}

QStringList RealApp::warnings() {
    QStringList warnings;
    for (const QJsonValue& value : ask(QStringLiteral("warnings"))[u"warnings"].toArray())
        warnings.append(value.toString());
    return warnings;
}

bool RealApp::waitForExit(int timeoutMs) {
    return m_process.waitForFinished(timeoutMs) && m_process.exitStatus() == QProcess::NormalExit &&
           m_process.exitCode() == 0;
}

double colouredShare(const QImage& image) {
    if (image.isNull())
        return 0;
    qint64 coloured = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.hsvSaturationF() > 0.3f && colour.valueF() > 0.25f)
                ++coloured;
        }
    }
    return double(coloured) / (double(image.width()) * image.height());
}

} // namespace tessarine::testing
