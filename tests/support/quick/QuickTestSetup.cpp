#include "QuickTestSetup.h"

#include "AppFixture.h"

#include "design/ReturnKeyClicks.h"

#include <QCoreApplication>
#include <QLocale>
#include <QQmlEngine>
#include <QStandardPaths>

namespace tessarine {

QuickTestSetup::QuickTestSetup() = default;
QuickTestSetup::~QuickTestSetup() = default;

void QuickTestSetup::applicationAvailable() {
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    installReturnKeyClicks(*QCoreApplication::instance());
}

void QuickTestSetup::qmlEngineAvailable(QQmlEngine* engine) {
    engine->addImportPath(QStringLiteral(":/"));
    m_fixture = std::make_unique<AppFixture>();
    qmlRegisterSingletonInstance("Tessarine.Testing", 1, 0, "Fixture", m_fixture.get());
}

} // namespace tessarine
