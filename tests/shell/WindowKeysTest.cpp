#include "app/AppState.h"
#include "shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;

// The main window and the help window over a history of their own, closed and quit by keys
// (the menus' mnemonics: tst_Accessibility.qml).
class WindowKeysTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        prepareShell();
    }

    // Ctrl+W closes the window that has the keyboard and leaves the other open; Ctrl+Q asks the
    // application to quit from either.
    void closeWindowAndQuit() {
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
