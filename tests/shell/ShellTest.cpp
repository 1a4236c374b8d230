#include "AccessibilityAudit.h"
#include "AppFixture.h"
#include "QmlWarnings.h"
#include "UserFiles.h"

#include "shell/ShellEngine.h"

#include <QQmlEngine>
#include <QtQuickTest>

namespace tessarine {

// Gives the QML tests the application's modules and a fixture (as the Fixture singleton of
// Tessarine.Testing) whose application state is the one AppState of the shell, and the
// Accessibility singleton that reads what screen readers see.
class ShellTestSetup : public QObject {
    Q_OBJECT

public slots:
    void applicationAvailable() {
        testing::isolateUserFiles();
        prepareShell();
        m_fixture = std::make_unique<AppFixture>();
        qmlRegisterSingletonInstance("Tessarine.Testing", 1, 0, "Fixture", m_fixture.get());
        qmlRegisterSingletonInstance("Tessarine.Testing", 1, 0, "Accessibility", &m_audit);
    }

    void qmlEngineAvailable(QQmlEngine* engine) {
        prepareEngine(*engine);
        testing::failOnQmlWarnings(*engine);
    }

    void cleanupTestCase() { m_fixture.reset(); }

private:
    std::unique_ptr<AppFixture> m_fixture;
    AccessibilityAudit m_audit;
};

} // namespace tessarine

QUICK_TEST_MAIN_WITH_SETUP(ShellTest, tessarine::ShellTestSetup)
#include "ShellTest.moc"
