#include "FileTrees.h"
#include "RealWindow.h"
#include "SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QFile>
#include <QTimer>
#include <QUrl>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

// The desktop's file chooser as its portal offers it: a call answers at once with a request, and
// the place picked is announced on that request a moment later, as a person picks it.
class FakeFileChooser : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")
    // Folders can be picked from version 3 on.
    Q_PROPERTY(uint version READ version)

public:
    explicit FakeFileChooser(QDBusConnection bus)
        : m_bus(std::move(bus)) {}

    uint version() const { return 3; }

    // What the next request picks.
    QUrl picked;
    // What the program last asked for, and with which options.
    QString method;
    QVariantMap options;

public slots:
    QDBusObjectPath SaveFile(const QString&, const QString&, const QVariantMap& asked) {
        return request(QStringLiteral("SaveFile"), asked);
    }
    QDBusObjectPath OpenFile(const QString&, const QString&, const QVariantMap& asked) {
        return request(QStringLiteral("OpenFile"), asked);
    }

private:
    QDBusObjectPath request(const QString& called, const QVariantMap& asked) {
        method = called;
        options = asked;
        const QString handle =
            QStringLiteral("/org/freedesktop/portal/desktop/request/test/%1").arg(++m_requests);
        // Later, not with the answer: the program listens on the request once it has it.
        QTimer::singleShot(500, this, [this, handle, uri = picked.toString()] {
            QDBusMessage response =
                QDBusMessage::createSignal(handle, QStringLiteral("org.freedesktop.portal.Request"),
                                           QStringLiteral("Response"));
            response << 0u << QVariantMap{{QStringLiteral("uris"), QStringList{uri}}};
            m_bus.send(response);
        });
        return QDBusObjectPath(handle);
    }

    QDBusConnection m_bus;
    int m_requests = 0;
};

} // namespace

// Where the desktop offers its own file chooser through its portal, the program uses it for the
// export's save dialog and for the folder picker: a fake portal on a session bus of the test's
// own picks the places, and the real program writes and scans there.
class DesktopFileChooserTest : public QObject {
    Q_OBJECT

    SessionBus m_bus;
    std::unique_ptr<FakeFileChooser> m_chooser;
    QTemporaryDir m_folders;
    std::unique_ptr<RealApp> m_app;

private slots:
    void initTestCase() {
        if (!m_bus.isRunning())
            QSKIP("needs dbus-daemon");
        QDBusConnection portal = QDBusConnection::connectToBus(QString::fromLatin1(m_bus.address()),
                                                               QStringLiteral("portal"));
        m_chooser = std::make_unique<FakeFileChooser>(portal);
        QVERIFY(portal.registerObject(
            QStringLiteral("/org/freedesktop/portal/desktop"), m_chooser.get(),
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties));
        QVERIFY(portal.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address());
        writeFiles(m_folders.path(), {{"Projects/photo.jpg", 40'000},
                                      {"Projects/notes.txt", 9'000},
                                      {"Picked Folder/song.mp3", 70'000}});
        m_app =
            std::make_unique<RealApp>(QStringList{m_folders.filePath(QStringLiteral("Projects"))});
        QVERIFY(m_app->start());
        QVERIFY(!m_app->waitFor(QStringLiteral("Storage Treemap"), 30'000).isEmpty());
    }

    void cleanupTestCase() { QDBusConnection::disconnectFromBus(QStringLiteral("portal")); }

    void cleanup() {
        m_app->screenshot(QStringLiteral("fileChooser-") +
                          QString::fromLatin1(QTest::currentTestFunction()));
        QCOMPARE(m_app->warnings(), QStringList());
    }

    void exportWritesWhereThePortalPicked() {
        const QString picked = m_folders.filePath(QStringLiteral("picked.csv"));
        m_chooser->picked = QUrl::fromLocalFile(picked);
        QVERIFY(m_app->click(QStringLiteral("exportToolbarButton")));
        QVERIFY(m_app->click(QStringLiteral("exportFormatCSV")));
        QVERIFY(m_app->click(QStringLiteral("exportButton")));
        QFile file(picked);
        QVERIFY(waitUntil([&] { return file.size() > 0; }));
        QCOMPARE(m_chooser->method, QStringLiteral("SaveFile"));
        QCOMPARE(m_chooser->options.value(QStringLiteral("current_name")).toString(),
                 QStringLiteral("analysis_Projects.csv"));
        QVERIFY(m_app->waitUntilGone(QStringLiteral("exportButton")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("photo.jpg"));
    }

    void folderPickerScansWhatThePortalPicked() {
        m_chooser->picked =
            QUrl::fromLocalFile(m_folders.filePath(QStringLiteral("Picked Folder")));
        m_app->key(QStringLiteral("ctrl+n"));
        QVERIFY(!m_app->waitFor(QStringLiteral("Picked Folder"), 30'000).isEmpty());
        QCOMPARE(m_chooser->method, QStringLiteral("OpenFile"));
        QVERIFY(m_chooser->options.value(QStringLiteral("directory")).toBool());
    }
};

int main(int argc, char* argv[]) {
    return runRealWindowTest<DesktopFileChooserTest>(argc, argv);
}

#include "DesktopFileChooserTest.moc"
