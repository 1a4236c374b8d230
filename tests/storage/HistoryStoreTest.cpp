#include "FileSizeLimit.h"
#include "FileTrees.h"
#include "SampleResults.h"
#include "StandardOutputCapture.h"
#include "storage/HistoryListing.h"
#include "storage/HistoryLocation.h"
#include "storage/PersistenceService.h"
#include "storage/SummaryIndex.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <sys/stat.h>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

QDateTime utc(int hour) {
    return QDateTime(QDate(2024, 6, 1), QTime(hour, 0), QTimeZone::utc());
}

QList<ScanSummary> loadedSummaries(PersistenceService& store) {
    auto loaded = store.loadSummaries();
    if (auto* error = std::get_if<StorageError>(&loaded))
        qWarning() << "loadSummaries failed:" << error->errorDescription();
    return std::get_if<QList<ScanSummary>>(&loaded) ? std::get<QList<ScanSummary>>(loaded)
                                                    : QList<ScanSummary>();
}

QStringList rootNames(const QList<ScanSummary>& summaries) {
    QStringList names;
    for (const ScanSummary& summary : summaries)
        names.append(summary.rootName);
    return names;
}

// The history folder as its files hold it, without the index the store keeps beside them.
QMap<QString, QByteArray> historyFiles(const QString& folder) {
    QMap<QString, QByteArray> files = folderSnapshot(folder);
    files.remove(summaryIndexPath(folder));
    return files;
}

} // namespace

class HistoryStoreTest : public QObject {
    Q_OBJECT

private slots:
    // A folder removed after start: AppStateTest; one that cannot be made: CliHistoryTest.
    void emptyDirectoryAndItsFallback() {
        QTemporaryDir base;
        PersistenceService store(base.path());
        QCOMPARE(store.storagePath(), base.filePath("Tessarine"));
        QVERIFY(loadedSummaries(store).isEmpty());

        // Without a data directory the history goes to the temporary one, and says so.
        StandardOutputCapture output;
        QCOMPARE(historyBaseDirectory(QString()), QDir::tempPath());
        QCOMPARE(output.finish(), "Warning: Application Support directory not available, using "
                                  "temporary directory\n");
    }

    void loadsOnlyDecodableJsonAndLeavesTheRestAlone() {
        QTemporaryDir base;
        PersistenceService store(base.path());
        const AnalysisResult stored = sampleResult(utc(10));
        QVERIFY(!store.save(stored));
        const QByteArray valid = readBytes(store.historyFilePath(stored.id));
        const QDir history(store.storagePath());

        writeFile(history.filePath("Upper.JSON"), valid);
        writeFile(history.filePath(".hidden.json"), valid);
        writeFile(history.filePath("notes.txt"), valid);
        // Summaries are read without decoding the lists, but a file cut short is still broken.
        writeFile(history.filePath("foreign.json"), R"({"hello": "world"})");
        writeFile(history.filePath("cut.json"), valid.left(valid.size() / 2));
        const QMap<QString, QByteArray> before = folderSnapshot(history.path());

        StandardOutputCapture output;
        const QList<ScanSummary> loaded = loadedSummaries(store);
        QStringList lines = QString::fromUtf8(output.finish()).split(u'\n', Qt::SkipEmptyParts);

        QCOMPARE(loaded, QList{ScanSummary::of(stored)});
        lines.sort();
        QCOMPARE(lines.size(), 2);
        // With its reason after the name.
        QVERIFY2(lines[0].startsWith("Failed to load cut.json: ") && lines[0].size() > 30,
                 qPrintable(lines[0]));
        QVERIFY2(lines[1].startsWith("Failed to load foreign.json: ") && lines[1].size() > 30,
                 qPrintable(lines[1]));
        QCOMPARE(historyFiles(history.path()), before);
    }

    // The index is believed for a file only while the file is as it was indexed: an index that
    // says otherwise than the files shows which one was read.
    void indexStandsInForUnchangedFilesOnly() {
        QTemporaryDir base;
        PersistenceService store(base.path());
        const AnalysisResult kept = sampleResult(utc(10));
        AnalysisResult changed = sampleResult(utc(11));
        QVERIFY(!store.save(kept) && !store.save(changed));
        const QList<ScanSummary> fromFiles = loadedSummaries(store);
        QCOMPARE(fromFiles.size(), 2);
        QCOMPARE(loadedSummaries(store), fromFiles); // from the index, import source and all
        CatalogEntries entries = readSummaryIndex(store.storagePath());
        QCOMPARE(entries.size(), 2);
        for (CatalogEntry& entry : entries)
            entry.summary->rootName = QStringLiteral("from the index");
        QVERIFY(writeSummaryIndex(store.storagePath(), entries));

        changed.rootName = QStringLiteral("saved again");
        QVERIFY(!store.save(changed));
        QCOMPARE(rootNames(loadedSummaries(store)), (QStringList{"saved again", "from the index"}));
        QVERIFY(!store.deleteResult(kept));
        QVERIFY(!store.deleteResult(kept)); // deleting what is gone succeeds
        QCOMPARE(rootNames(loadedSummaries(store)), QStringList{"saved again"});
        QCOMPARE(readSummaryIndex(store.storagePath()).size(), 1);
    }

    // An index that cannot be believed (cut short, a byte changed, of another version) costs
    // reading the files, and is made again; a folder in its place is only read past.
    void unusableIndexIsRebuilt() {
        QTemporaryDir base;
        PersistenceService store(base.path());
        const AnalysisResult stored = sampleResult(utc(10));
        QVERIFY(!store.save(stored));
        QCOMPARE(loadedSummaries(store).size(), 1);
        const QString index = summaryIndexPath(store.storagePath());
        const QByteArray valid = readBytes(index);
        QByteArray flipped = valid, otherVersion = valid;
        flipped[valid.size() / 2] = char(flipped[valid.size() / 2] ^ 1);
        otherVersion[7] = char(otherVersion[7] + 1);
        for (const auto& damaged :
             {std::optional(valid.left(valid.size() / 2)), std::optional(flipped),
              std::optional(otherVersion), std::optional<QByteArray>()}) {
            QVERIFY(QFile::remove(index));
            if (damaged)
                writeFile(index, *damaged);
            else
                QVERIFY(QDir().mkdir(index));
            QVERIFY(readSummaryIndex(store.storagePath()).isEmpty());

            StandardOutputCapture output;
            QCOMPARE(loadedSummaries(store), QList{ScanSummary::of(stored)});
            QCOMPARE(output.finish(), QByteArray());
            QCOMPARE(readSummaryIndex(store.storagePath()).size(), damaged ? 1 : 0);
        }
    }

    // A save that runs out of room keeps the earlier save of the same result whole. How a save
    // that cannot make its folder fails is CliHistoryTest's and AppStateTest's.
    void failedSaveLeavesTheEarlierSaveWhole() {
        QTemporaryDir base;
        PersistenceService store(base.path());
        const QDir history(store.storagePath());
        AnalysisResult stored = sampleResult(utc(11));
        QVERIFY(!store.save(stored));
        const QMap<QString, QByteArray> saved = folderSnapshot(history.path());
        stored.rootName = QString(4096, u'x');
        {
            const FileSizeLimit nearlyFull(readBytes(store.historyFilePath(stored.id)).size());
            const std::optional<StorageError> tooLarge = store.save(stored);
            QVERIFY(tooLarge);
            QVERIFY2(tooLarge->errorDescription().endsWith("File too large"),
                     qPrintable(tooLarge->errorDescription()));
        }
        QCOMPARE(folderSnapshot(history.path()), saved);
    }

    // Things other than history files under history file names: each must be passed over with
    // the usual line, quickly and without reading it dry, and the valid result beside it must
    // still load.
    void entriesThatAreNotStoredScansAreSkipped_data() {
        QTest::addColumn<QString>("kind");
        QTest::newRow("link to an endless device") << "zero";
        QTest::newRow("pipe without a writer") << "fifo";
        QTest::newRow("larger than any stored scan") << "huge";
        QTest::newRow("folder") << "folder";
    }

    void entriesThatAreNotStoredScansAreSkipped() {
        QFETCH(QString, kind);
        QTemporaryDir base;
        PersistenceService store(base.path());
        const AnalysisResult stored = sampleResult(utc(10));
        QVERIFY(!store.save(stored));
        const QString hostileName =
            QStringLiteral("scan_00000000-0000-0000-0000-000000000000.json");
        const QString hostile = QDir(store.storagePath()).filePath(hostileName);
        if (kind == u"zero") {
            QVERIFY(QFile::link(QStringLiteral("/dev/zero"), hostile));
        } else if (kind == u"fifo") {
            QCOMPARE(::mkfifo(QFile::encodeName(hostile).constData(), 0600), 0);
        } else if (kind == u"huge") {
            // Sparse: it takes no room on disk, only its size tells.
            QFile file(hostile);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.resize(qint64(1) << 32));
        } else {
            QVERIFY(QDir().mkdir(hostile));
        }

        // Reported at every first look, as a start does, and once among later looks.
        for (int start = 0; start < 2; ++start) {
            StandardOutputCapture output;
            const QList<ScanSummary> loaded = loadedSummaries(store);
            const QString printed = QString::fromUtf8(output.finish());
            QCOMPARE(loaded, QList{ScanSummary::of(stored)});
            QVERIFY2(printed.startsWith("Failed to load " + hostileName + ": "),
                     qPrintable(printed));
            QCOMPARE(printed.count(u'\n'), 1);
        }
        HistoryCatalog catalog(store.storagePath());
        StandardOutputCapture later;
        QVERIFY(std::get<bool>(catalog.look(HistoryCatalog::Reporting::newlyBrokenFiles)));
        QVERIFY(!std::get<bool>(catalog.look(HistoryCatalog::Reporting::newlyBrokenFiles)));
        QCOMPARE(later.finish().count('\n'), 1);
    }
};

QTEST_GUILESS_MAIN(HistoryStoreTest)
#include "HistoryStoreTest.moc"
