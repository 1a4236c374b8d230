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
    // By default more threads than cores; with a budget of one held descriptor most folders are
    // opened again from the root, level by level.
    void matchesSequentialWalk() {
        QTemporaryDir dir;
        generateTree(dir.path(), 3000, 7);
        const std::vector<WalkedItem> expected = referenceWalk(QFile::encodeName(dir.path()));
        const auto folders =
            std::count_if(expected.begin(), expected.end(), [](const WalkedItem& i) {
                return i.kind == EntryKind::directory || i.kind == EntryKind::package;
            });
        const int descriptorsBefore = openDescriptorCount();
        for (const auto& [threads, heldDescriptors] : {std::pair{0, 0}, {1, 0}, {3, 1}}) {
            DirectoryWalker::Options options;
            options.threadCount = threads;
            options.maxHeldDescriptors = heldDescriptors;
            const DirectoryListing listing = walk(dir.path(), options);

            const std::vector<WalkedItem> actual = cursorItems(listing);
            QCOMPARE(actual.size(), expected.size());
            for (std::size_t i = 0; i < expected.size(); ++i)
                QVERIFY2(actual[i] == expected[i], expected[i].path.constData());
            QCOMPARE(listing.itemCount(), qint64(expected.size()));
            QCOMPARE(listing.folderCount(), qint64(folders));
            QVERIFY(!listing.wasCancelled());
            QCOMPARE(openDescriptorCount(), descriptorsBefore);
        }
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
