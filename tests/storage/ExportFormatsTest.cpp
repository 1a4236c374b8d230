#include "FileSizeLimit.h"
#include "FileTrees.h"
#include "SampleResults.h"

#include "storage/CsvExport.h"
#include "storage/ExportWriter.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

std::variant<QByteArray, StorageError> csvOf(const QList<FileInfo>& files) {
    AnalysisResult result;
    result.largestFiles = files;
    return csv::exportLargestFiles(result);
}

} // namespace

class ExportFormatsTest : public QObject {
    Q_OBJECT

private slots:
    void csvQuotesOnlyPathAndNameWhenNeeded() {
        FileInfo commaAndQuote = sampleFile(QStringLiteral("/data/say \"hi\"/a,b.txt"), 4096,
                                            QStringLiteral("txt"), FileCategory::documents);
        commaAndQuote.modificationDate =
            QDateTime(QDate(2024, 3, 5), QTime(14, 7, 9, 750), QTimeZone::utc());
        FileInfo lineFeed = sampleFile(QStringLiteral("/data/two\nlines.obj"), 0,
                                       QStringLiteral("obj"), FileCategory::design);
        FileInfo carriageReturn =
            sampleFile(QStringLiteral("/data/odd\rname"), -1, QString(), FileCategory::other);
        FileInfo commaExtension = sampleFile(QStringLiteral("/data/deep/er/x.yz"), 9'000'000'000,
                                             QStringLiteral("y,z"), FileCategory::other);
        commaExtension.modificationDate =
            QDateTime(QDate(2024, 3, 5), QTime(16, 7, 9), QTimeZone(2 * 3600));
        FileInfo utf8 = sampleFile(QStringLiteral("/\u00e9t\u00e9/\u30d5.txt"), 1,
                                   QStringLiteral("txt"), FileCategory::documents);

        const QByteArray header = "Path,Name,Size (bytes),Extension,Category,Depth,Modified\n";
        QCOMPARE(std::get<QByteArray>(csvOf({})), header);
        QCOMPARE(std::get<QByteArray>(
                     csvOf({commaAndQuote, lineFeed, carriageReturn, commaExtension, utf8})),
                 header + "\"/data/say \"\"hi\"\"/a,b.txt\",\"a,b.txt\",4096,txt,Documents,1,"
                          "2024-03-05T14:07:09Z\n"
                          "\"/data/two\nlines.obj\",\"two\nlines.obj\",0,obj,3D & Design,0,"
                          "2023-12-31T23:59:59Z\n"
                          "/data/odd\rname,odd\rname,-1,,Other,0,2023-12-31T23:59:59Z\n"
                          "/data/deep/er/x.yz,x.yz,9000000000,y,z,Other,2,2024-03-05T14:07:09Z\n"
                          "/\xC3\xA9t\xC3\xA9/\xE3\x83\x95.txt,\xE3\x83\x95.txt,1,txt,Documents,0,"
                          "2023-12-31T23:59:59Z\n");
    }

    void csvRefusesTextThatUtf8CannotHold() {
        const auto exported = csvOf({sampleFile(QStringLiteral("/data/broken") + QChar(0xD800), 1,
                                                QString(), FileCategory::other)});
        QVERIFY(std::holds_alternative<StorageError>(exported));
        const StorageError& error = std::get<StorageError>(exported);
        QVERIFY(error.persistenceError());
        QCOMPARE(error.persistenceError()->kind, PersistenceError::Kind::encodingFailed);
    }

    // An export replaces a longer file whole. A failed one says why in the system's words, and
    // leaves what was there before untouched: no partial file, no removed earlier export.
    void exportReplacesOrLeavesNoPartialFile() {
        QTemporaryDir target;
        const QString earlier = target.filePath("analysis_My \"Projects\", 2024.csv");
        QVERIFY(!writeExport(earlier, QByteArray(1000, 'x')) && !writeExport(earlier, "kept"));
        QCOMPARE(readBytes(earlier), QByteArray("kept"));
        const QMap<QString, QByteArray> before = folderSnapshot(target.path());

        QCOMPARE(writeExport(earlier + "/out.csv", "x")->errorDescription(),
                 "Could not write \"" + earlier + "/out.csv\": Not a directory");
        {
            const FileSizeLimit nearlyFull(1000);
            for (const QString& path : {earlier, target.filePath("new.json")}) {
                const std::optional<StorageError> error = writeExport(path, QByteArray(5000, 'x'));
                QVERIFY(error);
                QCOMPARE(error->errorDescription(),
                         "Could not write \"" + path + "\": File too large");
            }
        }
        QCOMPARE(folderSnapshot(target.path()), before);

        if (QFile::exists("/dev/full")) {
            const auto full = writeExport("/dev/full", QByteArray(100, 'x'));
            QVERIFY(full && full->errorDescription().endsWith("No space left on device"));
        }
    }
};

QTEST_GUILESS_MAIN(ExportFormatsTest)
#include "ExportFormatsTest.moc"
