#include "design/ColorScheme.h"

#include <QEvent>
#include <QGuiApplication>
#include <QJSEngine>
#include <QPalette>
#include <QPointer>

namespace tessarine {

bool isDarkPalette(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

ColorScheme& ColorScheme::instance() {
    // Owned by the application, so that it goes before the session bus does; without an
    // application (command-line code drawing nothing) it stays light.
    static QPointer<ColorScheme> scheme;
    if (!scheme)
        scheme = new ColorScheme(QCoreApplication::instance());
    return *scheme;
}

ColorScheme* ColorScheme::create(QQmlEngine*, QJSEngine*) {
    ColorScheme* scheme = &instance();
    // Shared with C++ and with every engine: no engine may delete it.
    QJSEngine::setObjectOwnership(scheme, QJSEngine::CppOwnership);
    return scheme;
}

ColorScheme::ColorScheme(QObject* parent)
    : QObject(parent) {
    if (!qobject_cast<QGuiApplication*>(parent))
        return;
    parent->installEventFilter(this);
    auto* portal = new AppearancePortal(this);
    connect(portal, &AppearancePortal::preferenceChanged, this, &ColorScheme::setPortalPreference);
    update();
}

bool ColorScheme::eventFilter(QObject* watched, QEvent* event) {
    // Sent to the application when the platform's palette changes (the desktop's colour scheme
    // on platforms whose palette follows it) and when the application sets one.
    if (event->type() == QEvent::ApplicationPaletteChange && watched == parent())
        update();
    return QObject::eventFilter(watched, event);
}

void ColorScheme::setPortalPreference(AppearancePortal::Preference preference) {
    m_portalPreference = preference;
    update();
}

void ColorScheme::update() {
    const bool dark = m_portalPreference == AppearancePortal::Preference::none
                          ? isDarkPalette(QGuiApplication::palette())
                          : m_portalPreference == AppearancePortal::Preference::dark;
    if (dark == m_dark)
        return;
    m_dark = dark;
    emit darkChanged();
}

} // namespace tessarine
