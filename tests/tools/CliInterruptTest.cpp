#include "CliRun.h"
#include "FileTrees.h"

#include <QTemporaryDir>
#include <QTest>

using namespace tessarine::testing;

// Ctrl-C during the long-running commands: a clean stop with the cancellation's own text and the
// status a shell gives an interrupted job.
class CliInterruptTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { writeFolders(m_folder.path(), 100, 20); }

    void ctrlCCancels_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("message");
        QTest::newRow("scan") << "scan"
                              << "Scan was cancelled\n";
        QTest::newRow("tree") << "tree"
                              << "Folder tree building was cancelled\n";
    }

    void ctrlCCancels() {
        QFETCH(QString, command);
        QFETCH(QString, message);
        const auto run = runCliInterrupted({command, m_folder.path()});
        if (!run)
            QSKIP("the command ended before it caught Ctrl-C");
        QCOMPARE(run->exitCode, 130);
        QCOMPARE(run->errorText(), message);
        QCOMPARE(run->output, QByteArray());
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(CliInterruptTest)
#include "CliInterruptTest.moc"
