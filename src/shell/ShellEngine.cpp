#include "ShellEngine.h"

#include "design/EmbeddedFonts.h"
#include "design/ReturnKeyClicks.h"
#include "scanner/DirectoryWalker.h"

#include <QFont>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TessarinePlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_DesignPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_AppPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ChartsPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ScreensPlugin)

namespace tessarine {

void prepareShell() {
    // Basic is the one style drawn entirely in QML, so every control takes the theme's look.
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    registerEmbeddedFonts();
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    QGuiApplication::setFont(font);
    installReturnKeyClicks(*QGuiApplication::instance());
    DirectoryWalker::setExtraThreadsYield(true);
}

void prepareEngine(QQmlEngine& engine) {
    engine.addImportPath(QStringLiteral("qrc:/"));
}

} // namespace tessarine
