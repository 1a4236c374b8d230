#include "FileTrees.h"
#include "ReferenceWalk.h"

#include "scanner/DirectoryWalker.h"
#include "scanner/ListingCursor.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

std::vector<WalkedItem> cursorItems(const DirectoryListing& listing) {
    std::vector<WalkedItem> items;
    for (ListingCursor cursor(listing); cursor.next();) {
        const ListedEntry& entry = cursor.entry();
        items.push_back({cursor.entryPath(), entry.kind(), entry.size(), entry.modifiedMsecs(),
                         cursor.depth()});
    }
    return items;
}

DirectoryListing walk(const QString& root, DirectoryWalker::Options options = {}) {
    return DirectoryWalker(std::move(options)).walk(root);
}

} // namespace

class DirectoryWalkerTest : public QObject {
    Q_OBJECT

private slots:
    void matchesSequentialWalk_data() {
        QTest::addColumn<int>("threads");
        QTest::addColumn<int>("heldDescriptors");
        QTest::newRow("default, more threads than cores") << 0 << 0;
        QTest::newRow("one thread") << 1 << 0;
        QTest::newRow("four threads") << 4 << 0;
        // One held descriptor forces most folders to be reopened from the root, level by level.
        QTest::newRow("descriptor budget of one") << 3 << 1;
    }

    void matchesSequentialWalk() {
        QFETCH(int, threads);
        QFETCH(int, heldDescriptors);
        QTemporaryDir dir;
        generateTree(dir.path(), 3000, 7);
        const int descriptorsBefore = openDescriptorCount();

        DirectoryWalker::Options options;
        options.threadCount = threads;
        options.maxHeldDescriptors = heldDescriptors;
        const DirectoryListing listing = walk(dir.path(), options);

        const std::vector<WalkedItem> expected = referenceWalk(QFile::encodeName(dir.path()));
        const std::vector<WalkedItem> actual = cursorItems(listing);
        QCOMPARE(actual.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            QVERIFY2(actual[i] == expected[i], expected[i].path.constData());
        QCOMPARE(listing.itemCount(), qint64(expected.size()));
        const auto folders =
            std::count_if(expected.begin(), expected.end(), [](const WalkedItem& i) {
                return i.kind == EntryKind::directory || i.kind == EntryKind::package;
            });
        QCOMPARE(listing.folderCount(), qint64(folders));
        QVERIFY(!listing.wasCancelled());
        QCOMPARE(openDescriptorCount(), descriptorsBefore);
    }

    // The rules the reference walk shares with the walker, pinned on their own.
    void classifiesEntries() {
        QTemporaryDir dir;
        const QString root = dir.path();
        writeFiles(root, {{"plain.txt", 1234},
                          {"empty", 0},
                          {"Editor.APP/Contents/Info.plist", 99},
                          {".git/config", 10},
                          {"sub/.hidden-file", 10}});
        QVERIFY(QFile::link(root + "/plain.txt", root + "/link-to-file"));
        QVERIFY(QFile::link(root + "/sub", root + "/link-to-folder"));
        QVERIFY(QFile::link(root + "/nowhere", root + "/dangling"));
        QCOMPARE(mkfifo(QFile::encodeName(root + "/pipe").constData(), 0644), 0);

        const DirectoryListing listing = walk(root);

        QMap<QByteArray, WalkedItem> byName;
        for (const WalkedItem& item : cursorItems(listing))
            byName.insert(item.path.mid(QFile::encodeName(root).size() + 1), item);
        QCOMPARE(byName.keys(),
                 (QList<QByteArray>{"Editor.APP", "dangling", "empty", "link-to-file",
                                    "link-to-folder", "pipe", "plain.txt", "sub"}));
        QCOMPARE(byName["plain.txt"].kind, EntryKind::file);
        QCOMPARE(byName["plain.txt"].size, 1234);
        QVERIFY(byName["plain.txt"].modifiedMsecs != ListedEntry::unknownModificationTime);
        QCOMPARE(byName["Editor.APP"].kind, EntryKind::package);
        QCOMPARE(byName["sub"].kind, EntryKind::directory);
        QCOMPARE(byName["pipe"].kind, EntryKind::special);
        for (const char* link : {"link-to-file", "link-to-folder", "dangling"}) {
            QCOMPARE(byName[link].kind, EntryKind::symlink);
            QCOMPARE(byName[link].size, 0);
        }
        QCOMPARE(listing.folderCount(), 2);
    }

    void cancelledWalkReleasesDescriptors() {
        QTemporaryDir dir;
        generateTree(dir.path(), 500, 3);
        const int descriptorsBefore = openDescriptorCount();
        const std::atomic<bool> cancelled{true};
        DirectoryWalker::Options options;
        options.cancelled = &cancelled;

        const DirectoryListing listing = walk(dir.path(), options);

        QVERIFY(listing.wasCancelled());
        QVERIFY(listing.itemCount() < 500);
        for (ListingCursor cursor(listing); cursor.next();) {
        }
        QCOMPARE(openDescriptorCount(), descriptorsBefore);
    }

    void reportsProgressConsistently() {
        QTemporaryDir dir;
        generateTree(dir.path(), 2000, 11);
        const QByteArray root = QFile::encodeName(dir.path());
        std::vector<WalkProgress> reports;
        DirectoryWalker::Options options;
        options.progressInterval = std::chrono::milliseconds(1);
        options.onProgress = [&](const WalkProgress& progress) { reports.push_back(progress); };
        const DirectoryListing listing = walk(dir.path(), options);
        qint64 previous = 0;
        for (const WalkProgress& report : reports) {
            QVERIFY(report.items >= previous);
            QVERIFY(report.folders <= report.items);
            QVERIFY(report.items <= listing.itemCount());
            // The first report may come before any folder has been listed.
            QVERIFY(report.recentFolderPath.isEmpty() || report.recentFolderPath.startsWith(root));
            previous = report.items;
        }
    }
};

QTEST_GUILESS_MAIN(DirectoryWalkerTest)
#include "DirectoryWalkerTest.moc"
