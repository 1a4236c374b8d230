#include "FileTrees.h"

#include "app/FolderTreeController.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace tessarine;
using namespace tessarine::testing;

class FolderTreeControllerTest : public QObject {
    Q_OBJECT

private slots:
    // The late outcome of a cancelled build, were it a tree or an error, must not reach the state.
    void cancelReturnsToIdleAndTheNextBuildEndsReady() {
        const QTemporaryDir large = makeFastTemporaryDir();
        generateTree(large.path(), 20000, 3u);
        QTemporaryDir small;
        // Three files of 1, 2 and 3 bytes in two levels of folders.
        writeFiles(small.path(), {{"a.txt", 1}, {"docs/b.txt", 2}, {"docs/old/c.txt", 3}});
        FolderTreeController controller;
        QSignalSpy states(&controller, &FolderTreeController::stateChanged);

        controller.build(large.path());
        QCOMPARE(controller.state(), FolderTreeController::Building);
        controller.cancel();
        QCOMPARE(controller.state(), FolderTreeController::Idle);
        controller.build(small.path());
        QTRY_COMPARE(controller.state(), FolderTreeController::Ready);

        QCOMPARE(states.size(), 4); // building, idle, building, ready
        QVERIFY(controller.hasTree());
        QCOMPARE(controller.tree()->path(), QDir::cleanPath(small.path()));
        QCOMPARE(controller.tree()->fileCount, 3);
        QCOMPARE(controller.tree()->totalSize, 6);
        QVERIFY(controller.errorText().isEmpty());
    }

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
