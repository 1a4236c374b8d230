#include "SessionBus.h"

#include <QStandardPaths>

namespace tessarine::testing {

SessionBus::SessionBus() {
    const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (daemon.isEmpty())
        return;
    m_daemon.start(daemon, {QStringLiteral("--session"), QStringLiteral("--nofork"),
                            QStringLiteral("--print-address")});
    if (m_daemon.waitForReadyRead(10'000))
        m_address = m_daemon.readLine().trimmed();
}

SessionBus::~SessionBus() {
    m_daemon.kill();
    m_daemon.waitForFinished();
}

} // namespace tessarine::testing
