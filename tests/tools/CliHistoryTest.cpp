#include "CliRun.h"
#include "FileTrees.h"
#include "SampleResults.h"

#include "model/Json.h"
#include "storage/PersistenceService.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

// Scans a new folder holding one file with --save, and returns the printed result.
std::optional<AnalysisResult> saveScanOf(const QString& folder) {
    writeFile(folder + "/file.bin", 1234);
    const CliRun run = runCli({"scan", "--save", folder});
    if (run.exitCode != 0)
        qWarning("scan --save failed: %s", run.errors.constData());
    return json::decodeResult(run.output);
}

// The elements of a JSON array, or none when the text is anything else.
std::optional<QJsonArray> jsonArray(const QByteArray& text) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return std::nullopt;
    return document.array();
}

QString idText(const AnalysisResult& result) {
    return result.id.toString(QUuid::WithoutBraces).toUpper();
}

} // namespace

class CliHistoryTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        QFile::remove(historyDirectory());
        QVERIFY(QDir(historyDirectory()).removeRecursively());
    }

    // Newest first; a broken file is reported on standard error, and spoils neither the table
    // nor the JSON on standard output.
    void savedScansAreListedNewestFirst() {
        QCOMPARE(runCli({"history"}).output, "No stored scans.\n");
        QCOMPARE(runCli({"history", "--json"}).output, "[]\n");
        const auto scanned = saveScanOf(m_folders.filePath("scanned"));
        QVERIFY(scanned);
        QCOMPARE(readBytes(historyDirectory() + "/scan_" + idText(*scanned) + ".json"),
                 json::encode(*scanned));
        // Stored dates have whole seconds: the others are set an hour either side of the scan.
        PersistenceService store(QFileInfo(historyDirectory()).path());
        AnalysisResult newer = sampleResult(scanned->scanDate.addSecs(3600));
        AnalysisResult older = sampleResult(scanned->scanDate.addSecs(-3600));
        newer.rootPath = QStringLiteral("/newer");
        older.rootPath = QStringLiteral("/older");
        QVERIFY(!store.save(older) && !store.save(newer));
        writeFile(historyDirectory() + "/broken.json", 1);

        // The table's form: CliCommandLineTest.
        QCOMPARE(runCli({"history"}).output.count('\n'), 4);
        const CliRun json = runCli({"history", "--json"});
        QCOMPARE(json.exitCode, 0);
        const auto all = jsonArray(json.output);
        QVERIFY(all);
        QCOMPARE(all->size(), 3);
        QCOMPARE(all->at(0).toObject()["id"].toString(), idText(newer));
        QCOMPARE(all->at(1).toObject()["rootPath"].toString(), scanned->rootPath);
        QCOMPARE(all->at(2).toObject()["rootPath"].toString(), older.rootPath);
        QVERIFY2(json.errorText().startsWith("Failed to load broken.json: "), json.errors);
    }

    void deleteRemovesOneScan() {
        const auto kept = saveScanOf(m_folders.filePath("kept"));
        const auto removed = saveScanOf(m_folders.filePath("removed"));
        QVERIFY(kept && removed);

        // Ids are accepted in either case.
        const QString id = idText(*removed).toLower();
        const CliRun run = runCli({"history", "delete", id});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(
            QDir(historyDirectory()).entryList(QDir::Files),
            QStringList({"scan_" + idText(*kept) + ".folders", "scan_" + idText(*kept) + ".json"}));

        const CliRun again = runCli({"history", "delete", id});
        QCOMPARE(again.exitCode, 1);
        QCOMPARE(again.errorText(), "No stored scan with id " + id + "\n");
    }

    // Between two saved scans one folder gains 50 MB, one appears and one goes: exactly those are
    // named, largest change first, and not the folders that hold them.
    void compareNamesTheFoldersThatChanged() {
        const QString root = m_folders.filePath("tree");
        writeFiles(root, {{"media/videos/clip.mp4", 1'000'000},
                          {"old/gone/data.bin", 2'000'000},
                          {"old/kept.txt", 4000},
                          {"docs/readme.txt", 5000}});
        const auto before = saveScanOf(root);
        QVERIFY(QFile::resize(root + "/media/videos/clip.mp4", 51'000'000)); // sparse: no disk
        QVERIFY(QDir(root + "/old/gone").removeRecursively());
        writeFile(root + "/new/fresh.bin", 3'000'000);
        const auto after = saveScanOf(root);
        QVERIFY(before && after);

        const CliRun json =
            runCli({"history", "compare", idText(*before), idText(*after), "--json"});
        QCOMPARE(json.exitCode, 0);
        const QJsonObject comparison = QJsonDocument::fromJson(json.output).object();
        QCOMPARE(comparison["change"].toObject()["totalSize"].toInteger(), 51'000'000);
        QCOMPARE(comparison["folderOutcome"].toString(), "compared");
        const QJsonArray expected{QJsonObject{{"path", root + "/media/videos"},
                                              {"before", 1'000'000},
                                              {"after", 51'000'000},
                                              {"change", 50'000'000}},
                                  QJsonObject{{"path", root + "/new"},
                                              {"before", QJsonValue::Null},
                                              {"after", 3'000'000},
                                              {"change", 3'000'000}},
                                  QJsonObject{{"path", root + "/old/gone"},
                                              {"before", 2'000'000},
                                              {"after", QJsonValue::Null},
                                              {"change", -2'000'000}}};
        QCOMPARE(comparison["folders"].toArray(), expected);

        const CliRun text = runCli({"history", "compare", idText(*before), idText(*after)});
        QCOMPARE(text.exitCode, 0);
        const QStringList lines = QString::fromUtf8(text.output).split('\n');
        const qsizetype first = lines.indexOf("Folders that changed, largest change first:") + 1;
        QVERIFY(first > 0);
        QCOMPARE(lines.mid(first).join('|').count(root), 3);
        QVERIFY(lines[first].contains(root + "/media/videos  (1 MB → 51 MB)"));
        QVERIFY(lines[first + 1].contains(root + "/new  (— → 3 MB)"));
        QVERIFY(lines[first + 2].contains(root + "/old/gone  (2 MB → —)"));
    }

    void compareWithoutFolderFigures() {
        const auto one = saveScanOf(m_folders.filePath("one"));
        const auto other = saveScanOf(m_folders.filePath("other"));
        QVERIFY(one && other);
        const CliRun different = runCli({"history", "compare", idText(*one), idText(*other)});
        QCOMPARE(different.exitCode, 0);
        QVERIFY(different.output.endsWith(
            "These scans are of different folders, so their folders are not compared.\n"));

        const auto again = saveScanOf(m_folders.filePath("one"));
        QVERIFY(again);
        writeFile(historyDirectory() + "/scan_" + idText(*again) + ".folders", 100);
        const CliRun damaged =
            runCli({"history", "compare", idText(*one), idText(*again), "--json"});
        QCOMPARE(damaged.exitCode, 0);
        QCOMPARE(QJsonDocument::fromJson(damaged.output)["folderOutcome"].toString(),
                 "noFolderSizes");

        const QString unknown = QUuid::createUuid().toString(QUuid::WithoutBraces);
        const std::pair<QString, QString> failures[] = {
            {"nonsense", "Not a scan id: nonsense\n"},
            {unknown, "No stored scan with id " + unknown + "\n"}};
        for (const auto& [id, message] : failures) {
            const CliRun run = runCli({"history", "compare", idText(*one), id});
            QCOMPARE(run.exitCode, 1);
            QCOMPARE(run.errorText(), message);
        }
    }

    void saveFailureIsReported() {
        // A file where the history folder should be: the store cannot make its folder.
        QVERIFY(QDir().mkpath(QFileInfo(historyDirectory()).path()));
        writeFile(historyDirectory(), 1);
        const QString folder = m_folders.filePath("unsaved");
        writeFile(folder + "/file.bin", 10);

        const CliRun run = runCli({"scan", "--save", folder});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.errorText().startsWith("Storage directory not accessible"), run.errors);
        QCOMPARE(run.output, QByteArray());
        QVERIFY(QFile::remove(historyDirectory()));
    }

private:
    QTemporaryDir m_folders;
};

QTEST_GUILESS_MAIN(CliHistoryTest)
#include "CliHistoryTest.moc"
