#pragma once

#include "design/AppearancePortal.h"
#include "design/Palette.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QPalette;
class QQmlEngine;

namespace tessarine {

// Whether a palette is a dark one: its window darker than the text on it.
bool isDarkPalette(const QPalette& palette);

// Whether the desktop asks for dark colours, followed live: one instance for the process, read by
// Palette's C++ callers and, as the ColorScheme singleton, by Theme, whose bindings all depend on
// `dark`. The settings portal's answer wins where one is given; otherwise the platform palette
// decides (on macOS and Windows it follows the system, on KDE the colour scheme), read again
// whenever the application's palette changes.
class ColorScheme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)

public:
    static ColorScheme& instance();
    static ColorScheme* create(QQmlEngine*, QJSEngine*);

    bool dark() const { return m_dark; }
    Appearance appearance() const { return m_dark ? Appearance::dark : Appearance::light; }

signals:
    void darkChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit ColorScheme(QObject* parent);
    void setPortalPreference(AppearancePortal::Preference preference);
    void update();

    AppearancePortal::Preference m_portalPreference = AppearancePortal::Preference::none;
    bool m_dark = false;
};

} // namespace tessarine
