#include "TestTrees.h"

#include "scanner/DirectoryWalker.h"
#include "scanner/ListingCursor.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <climits>
#include <sys/stat.h>
#include <unistd.h>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

std::vector<WalkedItem> cursorItems(const DirectoryListing& listing) {
    std::vector<WalkedItem> items;
    ListingCursor cursor(listing);
    while (cursor.next()) {
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
    void matchesSequentialWalk_data();
    void matchesSequentialWalk();
    void classifiesEntries();
    void keepsOddNamesAsBytes();
    void walksChainDeeperThanPathMax();
    void handlesMissingAndSymlinkedRoots();
    void cancelledWalkReleasesDescriptors();
    void reportsProgressConsistently();
};

void DirectoryWalkerTest::matchesSequentialWalk_data() {
    QTest::addColumn<int>("threads");
    QTest::addColumn<int>("heldDescriptors");
    QTest::newRow("all cores") << 0 << 0;
    QTest::newRow("one thread") << 1 << 0;
    QTest::newRow("four threads") << 4 << 0;
    // One held descriptor forces most folders to be reopened from the root, level by level.
    QTest::newRow("descriptor budget of one") << 3 << 1;
}

void DirectoryWalkerTest::matchesSequentialWalk() {
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
    const auto folders = std::count_if(expected.begin(), expected.end(), [](const WalkedItem& i) {
        return i.kind == EntryKind::directory || i.kind == EntryKind::package;
    });
    QCOMPARE(listing.folderCount(), qint64(folders));
    QVERIFY(!listing.wasCancelled());
    QCOMPARE(openDescriptorCount(), descriptorsBefore);
}

void DirectoryWalkerTest::classifiesEntries() {
    QTemporaryDir dir;
    const QString root = dir.path();
    writeFile(root + "/plain.txt", 1234);
    writeFile(root + "/empty", 0);
    writeFile(root + "/Editor.APP/Contents/Info.plist", 99);
    writeFile(root + "/.git/config", 10);
    writeFile(root + "/sub/.hidden-file", 10);
    QVERIFY(QFile::link(root + "/plain.txt", root + "/link-to-file"));
    QVERIFY(QFile::link(root + "/sub", root + "/link-to-folder"));
    QVERIFY(QFile::link(root + "/nowhere", root + "/dangling"));
    QCOMPARE(mkfifo(QFile::encodeName(root + "/pipe").constData(), 0644), 0);

    const DirectoryListing listing = walk(root);

    QMap<QByteArray, WalkedItem> byPath;
    for (const WalkedItem& item : cursorItems(listing))
        byPath.insert(item.path.mid(QFile::encodeName(root).size() + 1), item);
    QCOMPARE(byPath.keys(), (QList<QByteArray>{"Editor.APP", "dangling", "empty", "link-to-file",
                                               "link-to-folder", "pipe", "plain.txt", "sub"}));
    QCOMPARE(byPath["plain.txt"].kind, EntryKind::file);
    QCOMPARE(byPath["plain.txt"].size, 1234);
    QVERIFY(byPath["plain.txt"].modifiedMsecs != ListedEntry::unknownModificationTime);
    QCOMPARE(byPath["empty"].size, 0);
    QCOMPARE(byPath["Editor.APP"].kind, EntryKind::package);
    QCOMPARE(byPath["sub"].kind, EntryKind::directory);
    QCOMPARE(byPath["pipe"].kind, EntryKind::special);
    for (const char* link : {"link-to-file", "link-to-folder", "dangling"}) {
        QCOMPARE(byPath[link].kind, EntryKind::symlink);
        QCOMPARE(byPath[link].size, 0);
    }
    QCOMPARE(listing.itemCount(), 8);
    QCOMPARE(listing.folderCount(), 2);
}

void DirectoryWalkerTest::keepsOddNamesAsBytes() {
    QTemporaryDir dir;
    const QList<QByteArray> names{"with space.txt", "quote\"and'apostrophe", "new\nline",
                                  "bad-\xff\xfe-utf8.bin", "tab\there"};
    const RawNamedFiles files(dir.path(), names, 3);

    QList<QByteArray> seen;
    for (const WalkedItem& item : cursorItems(walk(dir.path()))) {
        seen.append(item.path.mid(item.path.lastIndexOf('/') + 1));
        QCOMPARE(item.size, 3);
    }
    std::sort(seen.begin(), seen.end());
    QList<QByteArray> expected = names;
    std::sort(expected.begin(), expected.end());
    QCOMPARE(seen, expected);
}

void DirectoryWalkerTest::walksChainDeeperThanPathMax() {
    QTemporaryDir dir;
    const int depth = 10000;
    const FolderChain chain(dir.path(), depth);

    // The listing goes before the chain does, released without recursion.
    const DirectoryListing listing = walk(dir.path());
    QCOMPARE(listing.itemCount(), depth + 1);
    QCOMPARE(listing.folderCount(), depth);
    ListingCursor cursor(listing);
    qint64 deepest = 0;
    QByteArray leafPath;
    while (cursor.next()) {
        deepest = std::max(deepest, cursor.depth());
        if (cursor.entry().kind() == EntryKind::file)
            leafPath = cursor.entryPath();
    }
    QCOMPARE(deepest, depth + 1);
    QVERIFY(leafPath.size() > PATH_MAX);
    QVERIFY(leafPath.endsWith("/d/d/leaf.txt"));
}

void DirectoryWalkerTest::handlesMissingAndSymlinkedRoots() {
    QTemporaryDir dir;
    writeFile(dir.path() + "/real/a.txt", 5);
    QVERIFY(QFile::link(dir.path() + "/real", dir.path() + "/alias"));

    const DirectoryListing missing = walk(dir.path() + "/absent");
    QVERIFY(!missing.root());
    QVERIFY(missing.isEmpty());
    QVERIFY(walk(dir.path() + "/real/a.txt").isEmpty());

    // The chosen root is followed even when it is a link; links below it are not.
    const DirectoryListing aliased = walk(dir.path() + "/alias");
    const std::vector<WalkedItem> items = cursorItems(aliased);
    QCOMPARE(items.size(), 1u);
    QCOMPARE(items[0].path, QFile::encodeName(dir.path() + "/alias/a.txt"));

    const DirectoryListing empty = walk(dir.path() + "/real/..");
    QVERIFY(empty.root());
}

void DirectoryWalkerTest::cancelledWalkReleasesDescriptors() {
    QTemporaryDir dir;
    generateTree(dir.path(), 500, 3);
    const int descriptorsBefore = openDescriptorCount();
    const std::atomic<bool> cancelled{true};
    DirectoryWalker::Options options;
    options.cancelled = &cancelled;

    const DirectoryListing listing = walk(dir.path(), options);

    QVERIFY(listing.wasCancelled());
    QVERIFY(listing.itemCount() < 500);
    ListingCursor cursor(listing);
    while (cursor.next()) {
    }
    QCOMPARE(openDescriptorCount(), descriptorsBefore);
}

void DirectoryWalkerTest::reportsProgressConsistently() {
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

QTEST_GUILESS_MAIN(DirectoryWalkerTest)
#include "DirectoryWalkerTest.moc"
