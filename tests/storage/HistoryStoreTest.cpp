#include "FileSizeLimit.h"
#include "FileTrees.h"
#include "SampleResults.h"
#include "StandardOutputCapture.h"
#include "model/Json.h"
#include "storage/HistoryListing.h"
#include "storage/HistoryLocation.h"
#include "storage/PersistenceService.h"
#include "storage/SummaryIndex.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <sys/stat.h>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

QDateTime utc(int hour, int minute = 0, int millisecond = 0) {
    return QDateTime(QDate(2024, 6, 1), QTime(hour, minute, 0, millisecond), QTimeZone::utc());
}

QDateTime wholeSeconds(const QDateTime& date) {
    return QDateTime::fromSecsSinceEpoch(date.toSecsSinceEpoch(), QTimeZone::utc());
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

bool isDirectoryNotAccessible(const std::optional<StorageError>& error) {
    return error && error->persistenceError() &&
           error->persistenceError()->kind == PersistenceError::Kind::directoryNotAccessible;
}

} // namespace

class HistoryStoreTest : public QObject {
    Q_OBJECT

private slots:
    // A folder removed after start loads nothing; one replaced by a file fails the listing.
    void emptyMissingOrReplacedDirectory() {
        QTemporaryDir base;
        PersistenceService store(base.path());
        QCOMPARE(store.storagePath(), base.filePath("Tessarine"));
        QVERIFY(loadedSummaries(store).isEmpty());

        QVERIFY(QDir(store.storagePath()).removeRecursively());
        auto loaded = store.loadSummaries();
        QVERIFY(std::holds_alternative<QList<ScanSummary>>(loaded));
        QVERIFY(std::get<QList<ScanSummary>>(loaded).isEmpty());

        writeFile(store.storagePath(), "the folder was replaced by a file");
        loaded = store.loadSummaries();
        QVERIFY(std::holds_alternative<StorageError>(loaded));
        const StorageError& error = std::get<StorageError>(loaded);
        QVERIFY(!error.persistenceError());
        QVERIFY2(error.errorDescription().contains("Not a directory"),
                 qPrintable(error.errorDescription()));
    }

    void historyLivesInTheDataDirectoryOrElseTheTemporaryOne() {
        QStandardPaths::setTestModeEnabled(true);
        const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        QCOMPARE(PersistenceService::shared().storagePath(), data + "/Tessarine");
        QVERIFY(!PersistenceService::shared().directoryError());
        QVERIFY(QFileInfo(data + "/Tessarine").isDir());

        StandardOutputCapture output;
        QCOMPARE(historyBaseDirectory(data), data);
        QCOMPARE(historyBaseDirectory(QString()), QDir::tempPath());
        QCOMPARE(output.finish(),
                 "Warning: Application Support directory not available, using temporary "
                 "directory\n");
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
        // A truncated file fails the same way: JsonCodecTest's malformed documents.
        writeFile(history.filePath("foreign.json"), R"({"hello": "world"})");
        const QMap<QString, QByteArray> before = folderSnapshot(history.path());

        StandardOutputCapture output;
        const QList<ScanSummary> loaded = loadedSummaries(store);
        const QStringList lines =
            QString::fromUtf8(output.finish()).split(u'\n', Qt::SkipEmptyParts);

        QCOMPARE(loaded.size(), 1);
        QCOMPARE(loaded.first().id, stored.id);
        QCOMPARE(lines.size(), 1);
        // With its reason after the name.
        QVERIFY2(lines[0].startsWith("Failed to load foreign.json: ") && lines[0].size() > 30,
                 qPrintable(lines[0]));
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
        QCOMPARE(loadedSummaries(store).size(), 2);
        CatalogEntries entries = readSummaryIndex(store.storagePath());
        QCOMPARE(entries.size(), 2);
        for (CatalogEntry& entry : entries)
            entry.summary->rootName = QStringLiteral("from the index");
        QVERIFY(writeSummaryIndex(store.storagePath(), entries));

        changed.rootName = QStringLiteral("saved again");
        QVERIFY(!store.save(changed));
        QCOMPARE(rootNames(loadedSummaries(store)), (QStringList{"saved again", "from the index"}));
        QVERIFY(!store.deleteResult(kept));
        QCOMPARE(rootNames(loadedSummaries(store)), QStringList{"saved again"});
        QCOMPARE(readSummaryIndex(store.storagePath()).size(), 1);
    }

    // An index that cannot be believed costs reading the files, and is made again.
    void unusableIndexIsRebuilt_data() {
        QTest::addColumn<QByteArray>("damage");
        QTest::newRow("empty") << QByteArray("empty");
        QTest::newRow("cut short") << QByteArray("cut");
        QTest::newRow("one byte changed") << QByteArray("flip");
        QTest::newRow("another version") << QByteArray("version");
        QTest::newRow("a folder") << QByteArray("folder");
    }
    void unusableIndexIsRebuilt() {
        QFETCH(QByteArray, damage);
        QTemporaryDir base;
        PersistenceService store(base.path());
        const AnalysisResult stored = sampleResult(utc(10));
        QVERIFY(!store.save(stored));
        QCOMPARE(loadedSummaries(store).size(), 1);
        const QString index = summaryIndexPath(store.storagePath());
        QByteArray bytes = readBytes(index);
        if (damage == "empty")
            bytes.clear();
        else if (damage == "cut")
            bytes.chop(bytes.size() / 2);
        else if (damage == "flip")
            bytes[bytes.size() / 2] = char(bytes[bytes.size() / 2] ^ 1);
        else if (damage == "version")
            bytes[7] = char(bytes[7] + 1);
        QVERIFY(QFile::remove(index));
        if (damage == "folder")
            QVERIFY(QDir().mkdir(index));
        else
            writeFile(index, bytes);
        QVERIFY(readSummaryIndex(store.storagePath()).isEmpty());

        StandardOutputCapture output;
        QCOMPARE(loadedSummaries(store), QList{ScanSummary::of(stored)});
        QCOMPARE(output.finish(), QByteArray());
        if (damage != "folder")
            QCOMPARE(readSummaryIndex(store.storagePath()).size(), 1);
    }

    void savingAgainReplacesAndDeletingTwiceSucceeds() {
        QTemporaryDir base;
        PersistenceService store(base.path());
        AnalysisResult result = sampleResult(utc(10));
        const AnalysisResult other = sampleResult(utc(11));
        QVERIFY(!store.save(result));
        QVERIFY(!store.save(other));
        result.rootName = QStringLiteral("renamed");
        QVERIFY(!store.save(result));

        const QDir history(store.storagePath());
        QCOMPARE(rootNames(loadedSummaries(store)), (QStringList{other.rootName, "renamed"}));

        QVERIFY(!store.deleteResult(result));
        QVERIFY(!QFile::exists(store.historyFilePath(result.id)));
        const QMap<QString, QByteArray> remaining = folderSnapshot(history.path());
        QVERIFY(!store.deleteResult(result));
        QVERIFY(!store.deleteResult(QUuid::createUuid()));
        QCOMPARE(folderSnapshot(history.path()), remaining);
        QCOMPARE(loadedSummaries(store).size(), 1);
        const auto gone = store.loadResult(result.id);
        QVERIFY(std::holds_alternative<StorageError>(gone));
        QCOMPARE(std::get<StorageError>(gone).errorDescription(), "File not found");
    }

    void roundTripKeepsEverythingButFractionalSeconds() {
        QTemporaryDir base;
        PersistenceService store(base.path());
        // Odd paths and the folder tree are JsonCodecTest's.
        AnalysisResult result = sampleResult(utc(10, 30, 750));
        result.largestFiles.first().modificationDate = utc(8, 15, 999);
        QVERIFY(!store.save(result));

        AnalysisResult expected = result;
        expected.scanDate = wholeSeconds(result.scanDate);
        expected.largestFiles.first().modificationDate =
            wholeSeconds(result.largestFiles.first().modificationDate);
        const QList<ScanSummary> listed = loadedSummaries(store);
        QCOMPARE(listed, QList{ScanSummary::of(expected)});
        QCOMPARE(loadedSummaries(store), listed); // again, from the summary index
        const auto loaded = store.loadResult(result.id);
        QVERIFY(std::holds_alternative<AnalysisResult>(loaded));
        QVERIFY(std::get<AnalysisResult>(loaded) == expected);

        // The JSON export is the history file itself, so an export dropped into the history
        // folder loads like any saved scan.
        QCOMPARE(json::encode(result), readBytes(store.historyFilePath(result.id)));
    }

    void uncreatableDirectoryFailsEveryOperationAndWritesNothing() {
        QTemporaryDir sandbox;
        const QString notADirectory = sandbox.filePath("plain file");
        writeFile(notADirectory, "not a folder");
        const QMap<QString, QByteArray> before = folderSnapshot(sandbox.path());

        PersistenceService store(notADirectory);
        QVERIFY(store.directoryError());
        QVERIFY(store.directoryError()->errorDescription().endsWith("Not a directory"));

        const AnalysisResult result = sampleResult(utc(10));
        const std::optional<StorageError> saveError = store.save(result);
        QVERIFY(isDirectoryNotAccessible(saveError));
        QCOMPARE(saveError->errorDescription(), store.directoryError()->errorDescription());
        auto loaded = store.loadSummaries();
        QVERIFY(std::holds_alternative<StorageError>(loaded));
        QVERIFY(isDirectoryNotAccessible(std::get<StorageError>(loaded)));
        QVERIFY(isDirectoryNotAccessible(store.deleteResult(result)));
        QCOMPARE(folderSnapshot(sandbox.path()), before);
    }

    void failedSaveLeavesNoPartialFile() {
        QTemporaryDir base;
        PersistenceService store(base.path());
        const AnalysisResult blocked = sampleResult(utc(10));
        const QDir history(store.storagePath());
        QVERIFY(history.mkdir(QFileInfo(store.historyFilePath(blocked.id)).fileName()));
        const QMap<QString, QByteArray> before = folderSnapshot(history.path());

        const std::optional<StorageError> error = store.save(blocked);
        QVERIFY(error);
        QVERIFY(!error->persistenceError());
        QVERIFY2(error->errorDescription().contains(store.historyFilePath(blocked.id)),
                 qPrintable(error->errorDescription()));
        QCOMPARE(folderSnapshot(history.path()), before);

        // A save that runs out of room keeps the earlier save of the same result whole.
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
