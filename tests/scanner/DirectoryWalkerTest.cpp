#include "TestTrees.h"

#include "scanner/DirectoryWalker.h"
#include "scanner/ListingCursor.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <climits>
#include <optional>
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
    void keepsLinkSizesWhenAsked();
    void sumsFilesIntoTheirFolders();
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

namespace {

using OwnSize = std::optional<qint64>;

// One entry of every kind, with hidden ones beside and below them.
void writeMixedTree(const QString& root) {
    writeFile(root + "/plain.txt", 1234);
    writeFile(root + "/empty", 0);
    writeFile(root + "/Editor.APP/Contents/Info.plist", 99);
    writeFile(root + "/.git/config", 10);
    writeFile(root + "/sub/.hidden-file", 10);
    QVERIFY(QFile::link(root + "/plain.txt", root + "/link-to-file"));
    QVERIFY(QFile::link(root + "/sub", root + "/link-to-folder"));
    QVERIFY(QFile::link(root + "/nowhere", root + "/dangling"));
    QCOMPARE(mkfifo(QFile::encodeName(root + "/pipe").constData(), 0644), 0);
}

// Walks the mixed tree, made with files and a link in sub-folders too.
DirectoryListing walkDeeperMixedTree(const QString& root, ListingDetail detail) {
    writeMixedTree(root);
    writeFile(root + "/sub/inner.bin", 40);
    writeFile(root + "/sub/deeper/last.dat", 7);
    QFile::link(root + "/nowhere/at/all", root + "/sub/sub-dangling");
    DirectoryWalker::Options options;
    options.detail = detail;
    return walk(root, std::move(options));
}

qint64 ownLinkSize(const QString& path) {
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0 ? qint64(status.st_size) : -1;
}

} // namespace

void DirectoryWalkerTest::classifiesEntries() {
    QTemporaryDir dir;
    const QString root = dir.path();
    writeMixedTree(root);

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
    const QTemporaryDir dir = makeFastTemporaryDir();
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

void DirectoryWalkerTest::keepsLinkSizesWhenAsked() {
    QTemporaryDir dir;
    const QString root = dir.path();
    const DirectoryListing sized = walkDeeperMixedTree(root, {.linkSizes = true});

    QMap<QByteArray, const ListedEntry*> byName;
    for (ListingCursor cursor(sized); cursor.next();)
        byName.insert(cursor.entry().name().toByteArray(), &cursor.entry());
    for (const char* link : {"link-to-file", "link-to-folder", "dangling", "sub-dangling"}) {
        const QString path = root + (link[0] == 's' ? "/sub/" : "/") + link;
        QCOMPARE(byName[link]->kind(), EntryKind::symlink);
        QCOMPARE(byName[link]->ownSize(), OwnSize(ownLinkSize(path)));
        // The scan's view of a link is unchanged: no size, no date.
        QCOMPARE(byName[link]->size(), 0);
        QCOMPARE(byName[link]->modifiedMsecs(), ListedEntry::unknownModificationTime);
    }
    QCOMPARE(byName["plain.txt"]->ownSize(), OwnSize(1234));
    QCOMPARE(byName["Editor.APP"]->ownSize(), OwnSize());
    QCOMPARE(byName["sub"]->ownSize(), OwnSize());

    // Without the option the links carry no size at all.
    const DirectoryListing plain = walk(root);
    for (ListingCursor cursor(plain); cursor.next();) {
        if (cursor.entry().kind() == EntryKind::symlink)
            QCOMPARE(cursor.entry().ownSize(), OwnSize());
    }
}

void DirectoryWalkerTest::sumsFilesIntoTheirFolders() {
    QTemporaryDir dir;
    const QString root = dir.path();
    const DirectoryListing summed =
        walkDeeperMixedTree(root, {.linkSizes = true, .summedFiles = true});
    const DirectoryListing full = walk(root);

    // Only folders and packages are left as entries; the rest is in each folder's totals.
    QMap<QByteArray, const ListedDirectory*> folders;
    for (ListingCursor cursor(summed); cursor.next();) {
        QVERIFY(cursor.entry().isFolder());
        if (const ListedDirectory* contents = cursor.entry().contents())
            folders.insert(cursor.entry().name().toByteArray(), contents);
    }
    QCOMPARE(folders.keys(), (QList<QByteArray>{"deeper", "sub"}));
    // plain.txt, empty, pipe and the three links; nothing hidden.
    QCOMPARE(summed.root()->summedCount(), 6);
    QCOMPARE(summed.root()->summedSize(), 1234 + ownLinkSize(root + "/link-to-file") +
                                              ownLinkSize(root + "/link-to-folder") +
                                              ownLinkSize(root + "/dangling"));
    QCOMPARE(folders["sub"]->summedCount(), 2);
    QCOMPARE(folders["sub"]->summedSize(), 40 + ownLinkSize(root + "/sub/sub-dangling"));
    QCOMPARE(folders["deeper"]->summedCount(), 1);
    QCOMPARE(folders["deeper"]->summedSize(), 7);
    // Counted as items all the same, so progress and totals do not change.
    QCOMPARE(summed.itemCount(), full.itemCount());
    QCOMPARE(summed.folderCount(), full.folderCount());
    QCOMPARE(full.root()->summedCount(), 0);
}

QTEST_GUILESS_MAIN(DirectoryWalkerTest)
#include "DirectoryWalkerTest.moc"
