#pragma once

class QQmlEngine;

namespace tessarine {

// Everything a process does before it loads the window: the Quick Controls style, the Inter and
// icon fonts, the application font, Return that presses the focused button, walks that leave the
// cores to the interface first and the statically linked QML modules. The application, its tests
// and the responsiveness benchmark all start the same way.
void prepareShell();

// Lets the engine find the application's QML modules, which live in the resources.
void prepareEngine(QQmlEngine& engine);

// Where the main window's QML is.
inline constexpr char mainWindowUrl[] = "qrc:/Tessarine/Main.qml";

} // namespace tessarine
