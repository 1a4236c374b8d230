#include "FileTrees.h"
#include "RecordedBuild.h"
#include "ReferenceTree.h"

#include "scanner/DirectoryWalker.h"
#include "tree/FolderEnumeration.h"
#include "tree/FolderTreeAssembly.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

const FolderInfo* childNamed(const FolderInfo& folder, const QString& name) {
    for (const FolderInfo& child : folder.childFolders) {
        if (child.name == name)
            return &child;
    }
    return nullptr;
}

// Whether every folder below the root keeps only its name and shares its parent's path, so that
// the tree's paths cost memory in proportion to its folders, not to folders times depth.
bool sharesParentPaths(const FolderInfo& root) {
    for (const FolderInfo* folder : root.flattened()) {
        for (const FolderInfo& child : folder->childFolders) {
            if (!child.location.extends(folder->location) ||
                child.location.lastPart() != child.name)
                return false;
        }
    }
    return true;
}

} // namespace

class FolderTreeShapeTest : public QObject {
    Q_OBJECT

private slots:
    // generateTree's awkward entries (packages, pipes, links, empty folders), and sibling folders
    // of equal size, kept in the file system's listing order.
    void equalsPlainRecursiveBuild() {
        const QTemporaryDir dir = makeFastTemporaryDir();
        generateTree(dir.path(), 3000, 7);
        writeFiles(dir.path(), {{"twin-a/f", 7}, {"twin-b/f", 7}, {"twin-c/f", 7}});

        const FolderInfo built = withoutIds(recordBuild(dir.path()).tree());

        QVERIFY(built == withoutIds(referenceTree(dir.path())));
        QVERIFY(built.childFolders.size() > 1);
    }

    void folderThatCannotBeListedBecomesLeaf() {
        QTemporaryDir dir;
        const QString root = dir.path();
        for (const char* name : {"first", "gone", "last"})
            writeFile(root + '/' + name + "/file", 10);
        writeFile(root + "/gone/inner/file", 10);

        // Stands in for a folder removed between its parent's listing and its own: the walker marks
        // such a folder unreadable, and so would a permission it lacks.
        const DirectoryListing listing = DirectoryWalker().walk(root);
        QByteArrayList order;
        for (const ListedEntry& entry : listing.root()->entries()) {
            order.append(entry.name().toByteArray());
            if (entry.name() == QByteArrayView("gone"))
                const_cast<ListedDirectory*>(entry.contents())->markUnreadable();
        }
        const std::atomic<bool> cancelled{false};
        qint64 reports = 0;
        FolderTreeAssembly assembly(cancelled, treeFolderCount(listing),
                                    [&](qint64, const QString&) { ++reports; });
        const std::optional<FolderInfo> tree = assembly.assemble(listing, root);

        QVERIFY(tree);
        QCOMPARE(tree->totalSize, 20);
        QCOMPARE(tree->fileCount, 2);
        QVERIFY(!childNamed(*tree, "gone"));
        for (const FolderInfo& child : tree->childFolders)
            QCOMPARE(child.color, folderColorAt(order.indexOf(child.name.toUtf8())));
        QCOMPARE(treeFolderCount(listing), 3); // inner was never listed
        QCOMPARE(assembly.processedCount(),
                 4); // the leaf is processed, without a report of its own
        QCOMPARE(reports, 3);
    }

    void chainTenThousandFoldersDeep() {
        const QTemporaryDir dir = makeFastTemporaryDir();
        QVERIFY(dir.isValid());
        const int depth = 10000;
        const FolderChain chain(dir.path(), depth);

        const RecordedBuild build = recordBuild(dir.path());

        const FolderInfo* folder = &build.tree();
        for (int level = 0; level <= depth; ++level) {
            QCOMPARE(folder->depth, level);
            QCOMPARE(folder->totalSize, 1);
            QCOMPARE(folder->fileCount, 1);
            if (level < depth) {
                QCOMPARE(folder->childFolders.size(), 1u);
                folder = &folder->childFolders[0];
            }
        }
        QVERIFY(folder->childFolders.empty());
        QCOMPARE(folder->path(), dir.path() + QStringLiteral("/d").repeated(depth));
        QVERIFY(sharesParentPaths(build.tree()));
        QCOMPARE(build.records.last().processedItems, depth + 1);
    }

    // Enough folders for the node pass to share subtrees out, some of them unreadable; the threads
    // must give the single thread's tree, count every folder once and report in increasing order.
    void sharedOutAcrossThreadsEqualsOneThread() {
        const QTemporaryDir dir = makeFastTemporaryDir();
        generateTree(dir.path(), 24000, 11u);
        const std::atomic<bool> notCancelled{false};
        const DirectoryListing listing =
            enumerateFolders(dir.path(), {}, notCancelled, [](const WalkProgress&) {});
        int unreadable = 0;
        for (const ListedEntry& entry : listing.root()->entries()) {
            if (entry.contents() && entry.contents()->state() == ListedDirectory::State::listed &&
                unreadable++ % 3 == 0)
                const_cast<ListedDirectory*>(entry.contents())->markUnreadable();
        }
        const qint64 folderCount = treeFolderCount(listing);
        QVERIFY(folderCount >= FolderTreeAssembly::parallelFolderCount);

        const auto assemble = [&](int threads, const std::atomic<bool>& cancelled,
                                  QList<qint64>& reported) {
            FolderTreeAssembly assembly(
                cancelled, folderCount,
                [&](qint64 processed, const QString&) { reported.append(processed); }, threads);
            const std::optional<FolderInfo> tree = assembly.assemble(listing, dir.path());
            return std::pair(tree ? std::optional(withoutIds(*tree)) : std::nullopt,
                             assembly.processedCount());
        };
        QList<qint64> alone, shared;
        const auto [single, singleCount] = assemble(1, notCancelled, alone);
        const auto [parallel, parallelCount] = assemble(4, notCancelled, shared);

        QVERIFY(single && parallel);
        QVERIFY(*parallel == *single);
        QVERIFY(sharesParentPaths(*parallel));
        QCOMPARE(parallelCount, singleCount);
        QCOMPARE(shared.last(), folderCount);
        QVERIFY(std::is_sorted(shared.begin(), shared.end()));
        QVERIFY(std::adjacent_find(shared.begin(), shared.end()) == shared.end());
        QVERIFY(shared.size() > 100);

        // Called off at the first record, while the threads are busy with their subtrees.
        std::atomic<bool> cancelled{false};
        FolderTreeAssembly assembly(
            cancelled, folderCount, [&](qint64, const QString&) { cancelled = true; }, 4);
        QVERIFY(!assembly.assemble(listing, dir.path()));
        QVERIFY(assembly.processedCount() < folderCount);
    }
};

QTEST_GUILESS_MAIN(FolderTreeShapeTest)
#include "FolderTreeShapeTest.moc"
