#include "FileSizeLimit.h"
#include "FolderSnapshot.h"
#include "SampleResults.h"

#include "storage/ExportWriter.h"
#include "storage/PersistenceService.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <unistd.h>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

const QByteArray header = "Path,Name,Size (bytes),Extension,Category,Depth,Modified\n";

QByteArray csvOf(const AnalysisResult& result) {
    QTemporaryDir base;
    auto exported = PersistenceService(base.path()).exportCSV(result);
    if (auto* error = std::get_if<StorageError>(&exported))
        qWarning() << "exportCSV failed:" << error->errorDescription();
    return std::get_if<QByteArray>(&exported) ? std::get<QByteArray>(exported) : QByteArray();
}

} // namespace

class ExportFormatsTest : public QObject {
    Q_OBJECT

private slots:
    void csvQuotesOnlyPathAndNameWhenNeeded() {
        AnalysisResult result;
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
        result.largestFiles = {commaAndQuote, lineFeed, carriageReturn, commaExtension};

        QCOMPARE(csvOf(result),
                 header + "\"/data/say \"\"hi\"\"/a,b.txt\",\"a,b.txt\",4096,txt,Documents,1,"
                          "2024-03-05T14:07:09Z\n"
                          "\"/data/two\nlines.obj\",\"two\nlines.obj\",0,obj,3D & Design,0,"
                          "2024-03-05T14:07:09Z\n"
                          "/data/odd\rname,odd\rname,-1,,Other,0,2024-03-05T14:07:09Z\n"
                          "/data/deep/er/x.yz,x.yz,9000000000,y,z,Other,2,2024-03-05T14:07:09Z\n");
    }

    void csvOfResultWithoutFilesIsTheHeaderAlone() { QCOMPARE(csvOf(AnalysisResult{}), header); }

    void csvRefusesTextThatUtf8CannotHold() {
        AnalysisResult result;
        result.largestFiles = {sampleFile(QStringLiteral("/data/broken") + QChar(0xD800), 1,
                                          QString(), FileCategory::other)};
        QTemporaryDir base;
        auto exported = PersistenceService(base.path()).exportCSV(result);
        QVERIFY(std::holds_alternative<StorageError>(exported));
        const StorageError& error = std::get<StorageError>(exported);
        QVERIFY(error.persistenceError());
        QCOMPARE(error.persistenceError()->kind, PersistenceError::Kind::encodingFailed);
        QCOMPARE(error.errorDescription(), QStringLiteral("Failed to encode data"));
    }

    void csvIsUtf8() {
        AnalysisResult result;
        result.largestFiles = {sampleFile(QStringLiteral("/été/ファイル.txt"), 1,
                                          QStringLiteral("txt"), FileCategory::documents)};
        QVERIFY(csvOf(result).contains("/\xC3\xA9t\xC3\xA9/\xE3\x83\x95"));
    }

    void writeExportReplacesTheFile() {
        QTemporaryDir target;
        const QString path = target.filePath("analysis_My \"Projects\", 2024.csv");
        QVERIFY(!writeExport(path, QByteArray(1000, 'x')));
        QVERIFY(!writeExport(path, "short"));
        QCOMPARE(readBytes(path), QByteArray("short"));
    }

    void writeExportReportsWhyItFailed() {
        QTemporaryDir target;
        const QString plainFile = target.filePath("plain");
        QVERIFY(!writeExport(plainFile, "x"));

        const std::optional<StorageError> belowFile = writeExport(plainFile + "/out.csv", "x");
        QVERIFY(belowFile);
        QVERIFY(!belowFile->persistenceError());
        QCOMPARE(belowFile->errorDescription(),
                 "Could not write \"" + plainFile + "/out.csv\": Not a directory");

        if (!QFile::exists("/dev/full"))
            QSKIP("no /dev/full to stand in for a full disk");
        const std::optional<StorageError> full = writeExport("/dev/full", QByteArray(100, 'x'));
        QVERIFY(full);
        QVERIFY2(full->errorDescription().endsWith("No space left on device"),
                 qPrintable(full->errorDescription()));
    }

    void failedExportLeavesNoPartialFile() {
        QTemporaryDir target;
        const QString earlier = target.filePath("earlier.csv");
        QVERIFY(!writeExport(earlier, "kept"));
        const QMap<QString, QByteArray> before = folderSnapshot(target.path());

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

        // Permissions do not stop root, so this part needs an ordinary user.
        if (::geteuid() == 0)
            return;
        QVERIFY(QFile::setPermissions(target.path(), QFile::ReadOwner | QFile::ExeOwner));
        const std::optional<StorageError> readOnly = writeExport(earlier, "replaced");
        QVERIFY(QFile::setPermissions(target.path(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(readOnly);
        QCOMPARE(folderSnapshot(target.path()), before);
    }

    void persistenceErrorTexts() {
        using Kind = PersistenceError::Kind;
        QCOMPARE((PersistenceError{Kind::directoryNotAccessible, std::nullopt}.errorDescription()),
                 QStringLiteral("Storage directory not accessible"));
        QCOMPARE(
            (PersistenceError{Kind::directoryNotAccessible, QStringLiteral("Permission denied")}
                 .errorDescription()),
            QStringLiteral("Storage directory not accessible: Permission denied"));
        QCOMPARE(
            (StorageError{PersistenceError{Kind::decodingFailed, std::nullopt}}.errorDescription()),
            QStringLiteral("Failed to decode data"));
        QCOMPARE(
            (StorageError{PersistenceError{Kind::fileNotFound, std::nullopt}}.errorDescription()),
            QStringLiteral("File not found"));
    }
};

QTEST_GUILESS_MAIN(ExportFormatsTest)
#include "ExportFormatsTest.moc"
