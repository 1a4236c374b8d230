#include "shell/DesktopFileChooser.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace tessarine {

namespace {

// Asked on a connection of its own: the shared session connection may not be made before the
// application object exists.
bool fileChooserAnswers() {
    const QString connection = QStringLiteral("tessarine-file-chooser");
    bool answers = false;
    {
        const QDBusConnection bus =
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, connection);
        if (bus.isConnected()) {
            QDBusMessage version = QDBusMessage::createMethodCall(
                QStringLiteral("org.freedesktop.portal.Desktop"),
                QStringLiteral("/org/freedesktop/portal/desktop"),
                QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
            version << QStringLiteral("org.freedesktop.portal.FileChooser")
                    << QStringLiteral("version");
            // A portal is up within milliseconds once the desktop runs; the window is not held up
            // longer than this by one that does not come.
            constexpr int timeoutMs = 1000;
            answers =
                bus.call(version, QDBus::Block, timeoutMs).type() == QDBusMessage::ReplyMessage;
        }
    }
    QDBusConnection::disconnectFromBus(connection);
    return answers;
}

} // namespace

void preferDesktopFileChooser() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORMTHEME") && fileChooserAnswers())
        qputenv("QT_QPA_PLATFORMTHEME", "xdgdesktopportal");
}

} // namespace tessarine
