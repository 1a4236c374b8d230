#include "ScreenFixtures.h"
#include "app/AppState.h"
#include "storage/PersistenceService.h"

#include <QLocale>
#include <QQmlEngine>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

#include <memory>

Q_IMPORT_QML_PLUGIN(Tessarine_AppPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ScreensPlugin)

using namespace tessarine;

// Gives every test file a fresh application state over a history in a temporary folder, and
// the fixtures that fill it.
class ScreensViewSetup : public QObject {
    Q_OBJECT

public slots:
    void applicationAvailable() {
        QStandardPaths::setTestModeEnabled(true);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral(":/"));
        m_fixtures.reset();
        m_state.reset();
        m_store = std::make_unique<PersistenceService>(m_history.path());
        m_state = std::make_unique<AppState>(*m_store);
        AppState::setSharedInstance(m_state.get());
        m_fixtures = std::make_unique<ScreenFixtures>(*m_state, *m_store);
        qmlRegisterSingletonInstance("Tessarine.Fixtures", 1, 0, "Fixtures", m_fixtures.get());
    }

private:
    QTemporaryDir m_history;
    std::unique_ptr<PersistenceService> m_store;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<ScreenFixtures> m_fixtures;
};

QUICK_TEST_MAIN_WITH_SETUP(screens_view_test, ScreensViewSetup)

#include "ScreensViewTest.moc"
