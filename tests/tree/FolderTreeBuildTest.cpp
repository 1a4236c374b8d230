#include "FileTrees.h"
#include "RecordedBuild.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;
using namespace tessarine::testing;

using Phase = FolderTreeProgress::Phase;

namespace {

QList<qint64> processedCounts(const QList<FolderTreeProgress>& records) {
    QList<qint64> counts;
    for (const FolderTreeProgress& record : records)
        counts.append(record.processedItems);
    return counts;
}

} // namespace

class FolderTreeBuildTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void recordsFollowThePhases() {
        QTemporaryDir dir;
        const QString root = dir.path();
        writeFolders(root, 3, 1);
        writeFile(root + "/folder0/inner/file", 4);
        writeFile(root + "/loose.txt", 2);

        FolderTreeService service;
        const RecordedBuild build = recordBuild(service, root);

        QVERIFY(std::holds_alternative<FolderInfo>(build.outcome));
        const FolderTreeProgress& first = build.records.first();
        QCOMPARE(first.phase, Phase::enumerating);
        QVERIFY(first.startTime.isValid());
        for (const FolderTreeProgress& record : build.records)
            QCOMPARE(record.startTime, first.startTime);

        // Entries: three folders with a byte each, inner with its file, the loose file.
        const FolderTreeProgress lastFound = build.recordsIn(Phase::enumerating).last();
        QCOMPARE(lastFound.totalItems, 0);
        QCOMPARE(lastFound.processedItems, 9);
        QCOMPARE(lastFound.currentFolder, QStringLiteral("9 items (4 folders)"));

        const QList<FolderTreeProgress> built = build.recordsIn(Phase::building);
        QCOMPARE(built.first().totalItems, 4);
        // Every folder reports with an interval of one, the root last and under its own name.
        QCOMPARE(processedCounts(built), (QList<qint64>{0, 1, 2, 3, 4, 5}));
        QCOMPARE(built.last().currentFolder, QFileInfo(root).fileName());

        const FolderTreeProgress& last = build.records.last();
        QCOMPARE(last.phase, Phase::complete);
        QCOMPARE(last.processedItems, 5);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(service.progress(), std::optional(last));
        QVERIFY(!service.isBuilding());
        QCOMPARE(service.statusText(), QStringLiteral("5 folders processed"));
    }

    // The build stops at the record that cancelled it, while enumerating or in the node pass, and
    // is over as far as the service shows (that it builds again afterwards is AppStateTest's).
    void cancelStopsTheBuild() {
        QTemporaryDir dir;
        writeFolders(dir.path(), 20, 1);
        for (const auto& [phase, processed] :
             {std::pair{Phase::enumerating, 0}, {Phase::building, 1}}) {
            FolderTreeService service;
            const RecordedBuild build =
                recordBuild(service, dir.path(),
                            [&](FolderTreeService& tree, const FolderTreeProgress& record) {
                                if (record.phase == phase && record.processedItems == processed)
                                    tree.setCancelled(true);
                            });

            QVERIFY(build.wasCancelled());
            QCOMPARE(build.records.last().phase, phase);
            QCOMPARE(build.records.last().processedItems, processed);
            QCoreApplication::sendPostedEvents();
            QCOMPARE(service.progress(), std::optional(build.records.last()));
            QVERIFY(!service.isBuilding());
            QVERIFY(!service.isCancelled());
        }
    }
};

QTEST_GUILESS_MAIN(FolderTreeBuildTest)
#include "FolderTreeBuildTest.moc"
