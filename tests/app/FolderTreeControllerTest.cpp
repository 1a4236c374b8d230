#include "FileTrees.h"

#include "app/FolderTreeController.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace tessarine;
using namespace tessarine::testing;

class FolderTreeControllerTest : public QObject {
    Q_OBJECT

private slots:
    void rootThatCannotBeListedFails_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("a file") << "file";
        // The superuser lists any folder.
        if (geteuid() != 0)
            QTest::newRow("unreadable") << "locked";
    }

    void rootThatCannotBeListedFails() {
        QFETCH(QString, name);
        QTemporaryDir dir;
        writeFile(dir.filePath("file"), 3);
        QVERIFY(QDir(dir.path()).mkdir("locked"));
        QFile::setPermissions(dir.filePath("locked"), QFileDevice::Permissions());
        FolderTreeController controller;

        controller.build(dir.filePath(name));
        QTRY_COMPARE(controller.state(), FolderTreeController::Failed);
        QCOMPARE(controller.errorText(), "Failed to load: Cannot access: " + dir.filePath(name));
        QVERIFY(!controller.hasTree());
        QFile::setPermissions(dir.filePath("locked"), QFileDevice::ReadOwner |
                                                          QFileDevice::WriteOwner |
                                                          QFileDevice::ExeOwner);
    }

    // A dashboard closed right after Build: its controller goes, and the build with it.
    void destroyedDuringABuildStopsIt() {
        const QTemporaryDir large = makeFastTemporaryDir();
        generateTree(large.path(), 20000, 3u);
        QList<FolderTreeProgress> records;
        {
            FolderTreeController controller;
            controller.service()->setProgressObserver(
                [&](const FolderTreeProgress& record) { records.append(record); });
            controller.build(large.path());
        }
        QVERIFY(!records.isEmpty());
        QCOMPARE(records.last().phase, FolderTreeProgress::Phase::enumerating);
    }
};

QTEST_GUILESS_MAIN(FolderTreeControllerTest)
#include "FolderTreeControllerTest.moc"
