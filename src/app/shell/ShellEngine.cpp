#include "ShellEngine.h"

#include "app/SymbolTable.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TessarinePlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_AppPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ChartsPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ScreensPlugin)

namespace tessarine {

namespace {

const QString interFolder = QStringLiteral("/usr/share/fonts/opentype/inter");

// Registers the Inter weights the theme uses; fontconfig usually knows them already, but an
// explicit registration keeps the look when it does not.
void loadInter() {
    for (const char* weight : {"Regular", "Medium", "SemiBold", "Bold"})
        QFontDatabase::addApplicationFont(
            QStringLiteral("%1/Inter-%2.otf").arg(interFolder, QLatin1String(weight)));
}

} // namespace

void prepareShell() {
    // Basic is the one style drawn entirely in QML, so every control takes the theme's look.
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    loadInter();
    SymbolTable::fontFamily();
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    QGuiApplication::setFont(font);
}

void prepareEngine(QQmlEngine& engine) {
    engine.addImportPath(QStringLiteral("qrc:/"));
}

} // namespace tessarine
