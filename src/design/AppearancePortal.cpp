#include "design/AppearancePortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace tessarine {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString objectPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString group = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");

// The portal's number: 1 prefers dark, 2 prefers light, 0 (and anything else) leaves it open.
// Older portals wrap the value of Read in a second variant.
AppearancePortal::Preference preferenceOf(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    switch (value.toUInt()) {
    case 1:
        return AppearancePortal::Preference::dark;
    case 2:
        return AppearancePortal::Preference::light;
    default:
        return AppearancePortal::Preference::none;
    }
}

} // namespace

AppearancePortal::AppearancePortal(QObject* parent)
    : QObject(parent) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage read =
        QDBusMessage::createMethodCall(service, objectPath, interface, QStringLiteral("Read"));
    read << group << key;
    // Not waited for: a portal that is slow to start must not hold up the window. Its switches
    // are listened to once it has answered.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, bus](QDBusPendingCallWatcher* call) mutable {
                const QDBusPendingReply<QDBusVariant> reply = *call;
                call->deleteLater();
                if (reply.isError())
                    return;
                bus.connect(service, objectPath, interface, QStringLiteral("SettingChanged"), this,
                            SLOT(settingChanged(QString, QString, QDBusVariant)));
                emit preferenceChanged(preferenceOf(reply.argumentAt(0)));
            });
}

void AppearancePortal::settingChanged(const QString& changedGroup, const QString& changedKey,
                                      const QDBusVariant& value) {
    if (changedGroup == group && changedKey == key)
        emit preferenceChanged(preferenceOf(value.variant()));
}

} // namespace tessarine
