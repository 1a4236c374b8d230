#pragma once

#include <QGuiApplication>
#include <QImage>
#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>
#include <QRect>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

namespace tessarine::testing {

// An X server of the test's own (Xvfb on the first free display), started before the driver's
// QGuiApplication so that the driver, xdotool and the application all talk to it.
class VirtualDisplay {
public:
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    // ":N", or empty when Xvfb could not start.
    const QString& name() const { return m_name; }

private:
    QProcess m_server;
    QString m_name;
};

// The main function of a real-window test: the Test class's slots, then alsoRun where given, run
// against an X server of their own, with a runtime folder of their own.
template <typename Test>
int runRealWindowTest(int argc, char* argv[], int (*alsoRun)(int, char**) = nullptr) {
    VirtualDisplay display;
    if (display.name().isEmpty()) {
        qCritical("Xvfb did not start (scripts/install-deps.sh installs it)");
        return 1;
    }
    qputenv("DISPLAY", display.name().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    QGuiApplication application(argc, argv);
    Test test;
    const int failures = QTest::qExec(&test, argc, argv);
    return alsoRun ? failures | alsoRun(argc, argv) : failures;
}

// Polls condition until it holds or timeoutMs pass, handling events meanwhile.
bool waitUntil(const std::function<bool()>& condition, int timeoutMs = 10'000);

// The real `tessarine` program in a real window of the virtual display, driven as a person drives
// it: xdotool moves the pointer, clicks, turns the wheel and types; what the window shows is read
// back from the X server's pixels. Controls are found by name through the window probe loaded
// into the program (object name, accessible name or text), never by fixed coordinates.
// Every step that waits polls with a deadline.
class RealApp {
public:
    // The program gets its own history (XDG_DATA_HOME), runtime folder and home folder.
    explicit RealApp(QStringList arguments);
    ~RealApp();
    RealApp(const RealApp&) = delete;
    RealApp& operator=(const RealApp&) = delete;

    // Starts the program, or starts it again once it has ended, and waits until its probe answers;
    // false if it did not come up.
    bool start();
    // The program's home folder, where its save dialog starts.
    QString home() const { return m_home.path(); }

    // Where an item shows on screen: the part of it that is not cut off, and whether that is all
    // of it.
    struct Shown {
        QRect rect;
        bool whole = false;
    };

    // The items with that name that show, in screen coordinates, in tree order.
    QList<Shown> findAll(const QString& name);
    // The first of them, or an empty rectangle.
    QRect find(const QString& name);
    // Turns the wheel over `over` one notch at a time, down (or up), until an item with that name
    // shows (whole, or any part of it); its rectangle, or an empty one when the page ends first.
    // One notch and a still picture at a time: quick turns speed the page up past the item.
    enum class Direction { Down, Up };
    enum class Showing { Whole, Partly };
    QRect scrollTo(const QString& name, QPoint over, Direction direction = Direction::Down,
                   Showing showing = Showing::Whole);
    // Waits until an item with that name shows; its rectangle, or an empty one after the deadline.
    QRect waitFor(const QString& name, int timeoutMs = 10'000);
    bool waitUntilGone(const QString& name, int timeoutMs = 10'000);

    void moveTo(QPoint point);
    void click(QPoint point);
    void doubleClick(QPoint point);
    // Waits for the control, then clicks its centre; false when it never showed.
    bool click(const QString& name);
    // Positive steps scroll down, negative up, one notch each.
    void wheel(QPoint point, int steps);
    void key(const QString& keys);
    void type(const QString& text);

    // Waits until what rect shows stops changing (animations and scrolling have ended).
    bool waitUntilStill(const QRect& rect, int timeoutMs = 5'000);
    // What the screen shows in rect, read from the X server.
    QImage grab(const QRect& rect) const;
    // The whole screen as <build>/realwindow/<name>.png, for people to open.
    void screenshot(const QString& name) const;
    // Every warning the program has printed so far.
    QStringList warnings();
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    // Waits until the program has ended by itself, successfully.
    bool waitForExit(int timeoutMs = 10'000);

private:
    QJsonObject ask(const QString& request);
    void xdotool(const QStringList& arguments);

    QStringList m_arguments;
    QTemporaryDir m_home;
    QString m_probeName;
    QProcess m_process;
    QLocalSocket m_probe;
    QPoint m_pointer{-1, -1};
};

// The share of the pixels of an image that are vivid colour (as a treemap's cells are) rather
// than the greys and whites of cards, text and backgrounds.
double colouredShare(const QImage& image);

} // namespace tessarine::testing
