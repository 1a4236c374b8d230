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
    // A folder that cannot be listed fails the build with its name. A missing folder and a file
    // fail the same way: FolderAnalysisSection (through this controller) and CliScanTest.
    void unreadableRootFails() {
        if (geteuid() == 0)
            QSKIP("the superuser lists any folder");
        QTemporaryDir dir;
        const QString locked = dir.filePath("locked");
        QVERIFY(QDir().mkdir(locked));
        QVERIFY(QFile::setPermissions(locked, QFileDevice::Permissions()));
        FolderTreeController controller;

        controller.build(locked);
        QTRY_COMPARE(controller.state(), FolderTreeController::Failed);
        QCOMPARE(controller.errorText(), "Failed to load: Cannot access: " + locked);
        QVERIFY(!controller.hasTree());
        QVERIFY(QFile::setPermissions(locked, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                  QFileDevice::ExeOwner));
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
