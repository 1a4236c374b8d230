#pragma once

#include "AppFixture.h"
#include "QmlWarnings.h"
#include "UserFiles.h"

#include "design/EmbeddedFonts.h"
#include "design/ReturnKeyClicks.h"

#include <QCoreApplication>
#include <QLocale>
#include <QObject>
#include <QQmlEngine>

#include <memory>

namespace tessarine {

// The set-up of a Qt Quick Test of the application's views: an English locale, no real history,
// and for every test file a fresh AppFixture as the Fixture singleton of Tessarine.Testing.
class QuickTestSetup : public QObject {
    Q_OBJECT

public slots:
    void applicationAvailable() {
        testing::isolateUserFiles();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        installReturnKeyClicks(*QCoreApplication::instance());
        registerEmbeddedFonts();
    }

    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral(":/"));
        // The fixture of the previous test file goes first: its destructor hands the desktop back
        // to the real one, which must not undo what the new fixture sets up.
        m_fixture.reset();
        testing::failOnQmlWarnings(*engine);
        m_fixture = std::make_unique<AppFixture>();
        qmlRegisterSingletonInstance("Tessarine.Testing", 1, 0, "Fixture", m_fixture.get());
    }

private:
    std::unique_ptr<AppFixture> m_fixture;
};

} // namespace tessarine
