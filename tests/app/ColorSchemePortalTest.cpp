#include "DesktopPalette.h"

#include "app/design/ColorScheme.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

using namespace tessarine;

namespace {

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
    QDBusVariant Read(const QString&, const QString&) const {
        return QDBusVariant(QVariant::fromValue(QDBusVariant(colorScheme)));
    }

signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace

// The desktop's preference from a portal on a session bus of the test's own: it wins over the
// platform palette and switches live; "no preference" leaves the palette to decide.
class ColorSchemePortalTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
        if (daemon.isEmpty())
            QSKIP("needs dbus-daemon");
        m_bus.start(daemon, {QStringLiteral("--session"), QStringLiteral("--nofork"),
                             QStringLiteral("--print-address")});
        QVERIFY(m_bus.waitForReadyRead());
        const QByteArray address = m_bus.readLine().trimmed();
        // The application's session bus from its first use on, which is still to come.
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QDBusConnection portal =
            QDBusConnection::connectToBus(QString::fromLatin1(address), QStringLiteral("portal"));
        QVERIFY(portal.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                                      QDBusConnection::ExportAllSlots |
                                          QDBusConnection::ExportAllSignals));
        QVERIFY(portal.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    void cleanupTestCase() {
        QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
        m_bus.kill();
        m_bus.waitForFinished();
    }

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

private:
    QProcess m_bus;
    FakeSettingsPortal m_portal;
};

QTEST_MAIN(ColorSchemePortalTest)
#include "ColorSchemePortalTest.moc"
