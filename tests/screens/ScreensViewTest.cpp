#include "AppFixture.h"

#include <QLocale>
#include <QQmlEngine>
#include <QStandardPaths>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

#include <memory>

Q_IMPORT_QML_PLUGIN(Tessarine_AppPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ChartsPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ScreensPlugin)

using namespace tessarine;

// Gives every test file a fresh application state and the fixture that fills it, as the Fixture
// singleton of Tessarine.Testing.
class ScreensViewSetup : public QObject {
    Q_OBJECT

public slots:
    void applicationAvailable() {
        QStandardPaths::setTestModeEnabled(true);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral(":/"));
        m_fixture = std::make_unique<AppFixture>(QStringLiteral(SCREENSHOT_DIR));
        qmlRegisterSingletonInstance("Tessarine.Testing", 1, 0, "Fixture", m_fixture.get());
    }

private:
    std::unique_ptr<AppFixture> m_fixture;
};

QUICK_TEST_MAIN_WITH_SETUP(ScreensViewTest, ScreensViewSetup)

#include "ScreensViewTest.moc"
