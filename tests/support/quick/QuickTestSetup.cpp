#include "QuickTestSetup.h"
#include "UserFiles.h"

#include "AppFixture.h"
#include "QmlWarnings.h"

#include "design/EmbeddedFonts.h"
#include "design/ReturnKeyClicks.h"

#include <QCoreApplication>
#include <QLocale>
#include <QQmlEngine>

namespace tessarine {

QuickTestSetup::QuickTestSetup() = default;
QuickTestSetup::~QuickTestSetup() = default;

void QuickTestSetup::applicationAvailable() {
    testing::isolateUserFiles();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    installReturnKeyClicks(*QCoreApplication::instance());
    registerEmbeddedFonts();
}

void QuickTestSetup::qmlEngineAvailable(QQmlEngine* engine) {
    engine->addImportPath(QStringLiteral(":/"));
    // The fixture of the previous test file goes first: its destructor hands the desktop back to
    // the real one, which must not undo what the new fixture sets up.
    m_fixture.reset();
    testing::failOnQmlWarnings(*engine);
    m_fixture = std::make_unique<AppFixture>();
    qmlRegisterSingletonInstance("Tessarine.Testing", 1, 0, "Fixture", m_fixture.get());
}

} // namespace tessarine
