#include "app/AppState.h"
#include "app/shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QQmlApplicationEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;

namespace {

// The letters a menu's entries are reached by with Alt: the character after each "&".
QString mnemonicOf(const QString& text) {
    static const QRegularExpression mnemonic(QStringLiteral("&(\\w)"));
    const QRegularExpressionMatch match = mnemonic.match(text);
    return match.hasMatch() ? match.captured(1).toLower() : QString();
}

// The menu's title and every entry's text, in the order Alt+letter sees them.
QStringList textsOf(QObject* menu) {
    QStringList texts;
    const int count = QQmlProperty::read(menu, QStringLiteral("count")).toInt();
    for (int i = 0; i < count; ++i) {
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, i));
        const QString text = item ? item->property("text").toString() : QString();
        if (!text.isEmpty())
            texts.append(text);
    }
    return texts;
}

} // namespace

// The main window and the help window over a history of their own, driven by keys.
class WindowKeysTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        prepareShell();
        m_store = std::make_unique<PersistenceService>(m_home.path());
        m_state = std::make_unique<AppState>(*m_store);
        AppState::setSharedInstance(m_state.get());
        prepareEngine(m_engine);
        m_engine.load(QUrl(QString::fromLatin1(mainWindowUrl)));
        QVERIFY(!m_engine.rootObjects().isEmpty());
        m_main = qobject_cast<QQuickWindow*>(m_engine.rootObjects().first());
        m_help = m_main->findChild<QQuickWindow*>(QStringLiteral("helpWindow"));
        QVERIFY(m_help);
    }

    // Every menu and every entry can be reached with Alt and one letter, and no letter stands for
    // two things at once: two menus of the bar, or two entries of one menu.
    void everyMenuHasItsOwnMnemonic() {
        QStringList titles;
        for (QObject* menu :
             m_main->findChildren<QObject*>(QRegularExpression(QStringLiteral("Menu$")))) {
            titles.append(menu->property("title").toString());
            QStringList letters;
            for (const QString& text : textsOf(menu)) {
                const QString letter = mnemonicOf(text);
                QVERIFY2(!letter.isEmpty(), qPrintable(text + QStringLiteral(" has no mnemonic")));
                QVERIFY2(!letters.contains(letter),
                         qPrintable(text + QStringLiteral(" repeats ") + letter));
                letters.append(letter);
            }
            QVERIFY(letters.size() >= 1);
        }
        QStringList titleLetters;
        for (const QString& title : titles) {
            const QString letter = mnemonicOf(title);
            QVERIFY2(!letter.isEmpty() && !titleLetters.contains(letter), qPrintable(title));
            titleLetters.append(letter);
        }
        QCOMPARE(titles.size(), 2);
    }

    // Ctrl+W closes the window that has the keyboard and leaves the other open; Ctrl+Q asks the
    // application to quit from either.
    void closeWindowAndQuit() {
        QVERIFY(QTest::qWaitForWindowExposed(m_main));
        QMetaObject::invokeMethod(m_help, "showHelp");
        QVERIFY(QTest::qWaitForWindowExposed(m_help));
        QTest::keyClick(m_help, Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(!m_help->isVisible());
        QVERIFY(m_main->isVisible());

        QSignalSpy quit(&m_engine, &QQmlEngine::quit);
        QTest::keyClick(m_main, Qt::Key_Q, Qt::ControlModifier);
        QTRY_COMPARE(quit.count(), 1);

        m_main->requestActivate();
        QTest::keyClick(m_main, Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(!m_main->isVisible());
    }

private:
    QTemporaryDir m_home;
    std::unique_ptr<PersistenceService> m_store;
    std::unique_ptr<AppState> m_state;
    // Made after the state and so destroyed before it: QML holds the state as a singleton.
    QQmlApplicationEngine m_engine;
    QQuickWindow* m_main = nullptr;
    QQuickWindow* m_help = nullptr;
};

QTEST_MAIN(WindowKeysTest)
#include "WindowKeysTest.moc"
