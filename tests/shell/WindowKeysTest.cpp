#include "UserFiles.h"
#include "app/AppState.h"
#include "shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;

// The main window, the help and the Settings window over a history of their own, opened, closed
// and quit by keys (the menus' mnemonics: tst_Accessibility.qml).
class WindowKeysTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        testing::isolateUserFiles();
        prepareShell();
    }

    // Ctrl+W closes the window that has the keyboard and leaves the other open; Ctrl+Q asks the
    // application to quit from either.
    void openCloseAndQuitByKeys() {
        QTemporaryDir home;
        PersistenceService store(home.path());
        AppState state(store);
        AppState::setSharedInstance(&state);
        // Made after the state and so destroyed before it: QML holds the state as a singleton.
        QQmlApplicationEngine engine;
        prepareEngine(engine);
        engine.load(QUrl(QString::fromLatin1(mainWindowUrl)));
        QVERIFY(!engine.rootObjects().isEmpty());
        auto* main = qobject_cast<QQuickWindow*>(engine.rootObjects().first());
        auto* help = main->findChild<QQuickWindow*>(QStringLiteral("helpWindow"));
        QVERIFY(help);

        QVERIFY(QTest::qWaitForWindowExposed(main));
        QMetaObject::invokeMethod(help, "showHelp");
        QVERIFY(QTest::qWaitForWindowExposed(help));
        QTest::keyClick(help, Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(!help->isVisible());
        QVERIFY(main->isVisible());

        // Ctrl+, opens Settings; Space turns its focused switch, and with it what new scans
        // count; Ctrl+W closes it alone.
        auto* settings = main->findChild<QQuickWindow*>(QStringLiteral("settingsWindow"));
        QVERIFY(settings);
        QTest::keyClick(main, Qt::Key_Comma, Qt::ControlModifier);
        QVERIFY(QTest::qWaitForWindowExposed(settings));
        QTest::keyClick(settings, Qt::Key_Space);
        QTRY_VERIFY(state.scanOptions().includeHidden);
        QTest::keyClick(settings, Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(!settings->isVisible());
        QVERIFY(main->isVisible());

        QSignalSpy quit(&engine, &QQmlEngine::quit);
        QTest::keyClick(main, Qt::Key_Q, Qt::ControlModifier);
        QTRY_COMPARE(quit.count(), 1);

        main->requestActivate();
        QTest::keyClick(main, Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(!main->isVisible());
    }
};

QTEST_MAIN(WindowKeysTest)
#include "WindowKeysTest.moc"
