#pragma once

#include <QGuiApplication>
#include <QPalette>

namespace tessarine::testing {

// The application's palette as a desktop in dark mode hands it over: light text on a dark
// window. Setting it is what a switch of the desktop's colour scheme does to a running program.
inline QPalette darkDesktopPalette() {
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Window, QColor(0x2A, 0x2A, 0x2A));
    palette.setColor(QPalette::WindowText, QColor(0xF0, 0xF0, 0xF0));
    return palette;
}

} // namespace tessarine::testing
