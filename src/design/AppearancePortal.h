#pragma once

#include <QObject>

class QDBusVariant;

namespace tessarine {

// The colour scheme the desktop asks applications for, as the freedesktop settings portal
// ("org.freedesktop.appearance" "color-scheme") reports it on the session bus. GNOME and others
// say dark there and nowhere else: the platform palette Qt 6.4 reads from them stays light.
// Without a session bus or a portal, nothing is ever reported.
class AppearancePortal : public QObject {
    Q_OBJECT

public:
    enum class Preference { none, dark, light };

    // Asks the portal without waiting for it and, once it has answered, listens for the desktop's
    // later switches.
    explicit AppearancePortal(QObject* parent = nullptr);

signals:
    void preferenceChanged(tessarine::AppearancePortal::Preference preference);

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace tessarine
