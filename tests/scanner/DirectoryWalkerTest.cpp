#include "FileTrees.h"
#include "ReferenceWalk.h"

#include "scanner/DirectoryWalker.h"
#include "scanner/ListingCursor.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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
};

QTEST_GUILESS_MAIN(DirectoryWalkerTest)
#include "DirectoryWalkerTest.moc"
