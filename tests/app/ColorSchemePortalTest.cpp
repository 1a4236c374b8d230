#include "DesktopPalette.h"

#include "app/design/ColorScheme.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

using namespace tessarine;

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");

// The desktop's settings portal, answering Read as older portals do (the value wrapped in a
// second variant) and announcing switches with SettingChanged.
class FakeSettingsPortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint colorScheme = 0;

    void switchTo(uint scheme) {
        colorScheme = scheme;
        emit SettingChanged(QStringLiteral("org.freedesktop.appearance"),
                            QStringLiteral("color-scheme"), QDBusVariant(scheme));
    }

public slots:
    QDBusVariant Read(const QString& group, const QString& key) const {
        if (group != QStringLiteral("org.freedesktop.appearance") ||
            key != QStringLiteral("color-scheme"))
            return {};
        return QDBusVariant(QVariant::fromValue(QDBusVariant(colorScheme)));
    }

signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

// A session bus of the test's own, made the process's session bus.
class PrivateSessionBus {
public:
    PrivateSessionBus() {
        const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
        if (daemon.isEmpty())
            return;
        m_daemon.start(daemon, {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                QStringLiteral("--print-address")});
        if (!m_daemon.waitForReadyRead())
            return;
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.toLatin1());
    }
    ~PrivateSessionBus() {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    bool isRunning() const { return !m_address.isEmpty(); }
    const QString& address() const { return m_address; }

private:
    QProcess m_daemon;
    QString m_address;
};

} // namespace

// The desktop's preference from the portal of a session bus of the test's own: it wins over the
// platform palette and switches live; "no preference" leaves the palette to decide.
class ColorSchemePortalTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        if (!m_bus.isRunning())
            QSKIP("needs dbus-daemon");
        QDBusConnection portal =
            QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("portal"));
        QVERIFY(portal.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                                      QDBusConnection::ExportAllSlots |
                                          QDBusConnection::ExportAllSignals));
        QVERIFY(portal.registerService(portalService));
    }

    void cleanupTestCase() { QDBusConnection::disconnectFromBus(QStringLiteral("portal")); }

    void portalPreferenceWinsAndSwitchesLive() {
        m_portal.colorScheme = 1;
        const ColorScheme& scheme = ColorScheme::instance();
        QTRY_VERIFY(scheme.dark());

        m_portal.switchTo(2);
        QTRY_VERIFY(!scheme.dark());
        // A light preference holds against a dark palette.
        const QPalette lightPalette = QGuiApplication::palette();
        QGuiApplication::setPalette(testing::darkDesktopPalette());
        QVERIFY(!scheme.dark());

        m_portal.switchTo(0);
        QTRY_VERIFY(scheme.dark());
        QGuiApplication::setPalette(lightPalette);
        QVERIFY(!scheme.dark());
    }

public:
    explicit ColorSchemePortalTest(const PrivateSessionBus& bus)
        : m_bus(bus) {}

private:
    const PrivateSessionBus& m_bus;
    FakeSettingsPortal m_portal;
};

int main(int argc, char** argv) {
    // Before the application: it may reach for the session bus as it starts.
    PrivateSessionBus bus;
    QGuiApplication application(argc, argv);
    ColorSchemePortalTest test(bus);
    return QTest::qExec(&test, argc, argv);
}
#include "ColorSchemePortalTest.moc"
