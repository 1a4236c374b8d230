#pragma once

#include <QByteArray>
#include <QProcess>

namespace tessarine::testing {

// A D-Bus session bus of the test's own (dbus-daemon), for fake desktop portals: tests never
// reach the desktop's bus. Not running where dbus-daemon is missing.
class SessionBus {
public:
    SessionBus();
    ~SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    bool isRunning() const { return m_daemon.state() == QProcess::Running; }
    // What DBUS_SESSION_BUS_ADDRESS names it by.
    const QByteArray& address() const { return m_address; }

private:
    QProcess m_daemon;
    QByteArray m_address;
};

} // namespace tessarine::testing
