#include "SampleResults.h"

#include "model/Json.h"
#include "model/JsonWriter.h"

#include <QTest>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

QUuid fixedId(int n) {
    return QUuid::fromString(QStringLiteral("0a1b2c3d-4e5f-4a6b-8c7d-00000000000%1").arg(n));
}

AnalysisResult smallResult() {
    AnalysisResult result;
    result.id = fixedId(1);
    // The milliseconds are not written.
    result.scanDate = QDateTime(QDate(2024, 3, 5), QTime(14, 7, 9, 987), Qt::UTC);
    result.rootPath = QStringLiteral("/data/ab");
    result.rootName = QStringLiteral("ab");
    result.totalSize = 1500;
    result.fileCount = 1;
    result.folderCount = 2;
    result.maxDepth = 10;
    result.scanDuration = 0.5;
    CategoryStats other;
    other.id = fixedId(2);
    other.fileCount = 1;
    other.totalSize = 1500;
    other.extensions = {QString()};
    result.categoryBreakdown = {other};
    FileInfo readme;
    readme.id = fixedId(3);
    readme.path = QStringLiteral("/data/ab/README");
    readme.name = QStringLiteral("README");
    readme.size = 1500;
    readme.depth = 1;
    readme.modificationDate = QDateTime(QDate(2023, 1, 2), QTime(3, 4, 5), Qt::UTC);
    result.largestFiles = {readme};
    result.depthDistribution = {{2, {0, 1, 0}}, {10, {0, 1, 0}}};
    ExtensionStats none;
    none.id = fixedId(4);
    none.fileCount = 1;
    none.totalSize = 1500;
    result.extensionStats = {{QString(), none}};
    result.importSource = ImportSource{QStringLiteral("ncdu"),
                                       QStringLiteral("srv.json"),
                                       QDateTime(QDate(2024, 3, 6), QTime(8, 0), Qt::UTC),
                                       {QStringLiteral("scanDuration")}};
    return result;
}

// Member names sorted by their bytes (so depth 10 before 2), dates in UTC to the second, ids in
// upper case; shown without the whitespace of pretty printing.
const QByteArray smallResultText =
    R"({"categoryBreakdown":[{"category":"Other","extensions":[""],"fileCount":1,)"
    R"("id":"0A1B2C3D-4E5F-4A6B-8C7D-000000000002","totalSize":1500}],)"
    R"("depthDistribution":{"10":{"fileCount":0,"folderCount":1,"totalSize":0},)"
    R"("2":{"fileCount":0,"folderCount":1,"totalSize":0}},)"
    R"("extensionStats":{"":{"category":"Other","ext":"","fileCount":1,)"
    R"("id":"0A1B2C3D-4E5F-4A6B-8C7D-000000000004","totalSize":1500}},)"
    R"("fileCount":1,"folderCount":2,"id":"0A1B2C3D-4E5F-4A6B-8C7D-000000000001",)"
    R"("importSource":{"fileName":"srv.json","importDate":"2024-03-06T08:00:00Z",)"
    R"("program":"ncdu","unknownFields":["scanDuration"]},"insights":[],)"
    R"("largestFiles":[{"category":"Other","depth":1,"fileExtension":"",)"
    R"("id":"0A1B2C3D-4E5F-4A6B-8C7D-000000000003","isDirectory":false,)"
    R"("modificationDate":"2023-01-02T03:04:05Z","name":"README",)"
    R"("path":"\/data\/ab\/README","size":1500}],"maxDepth":10,"rootName":"ab",)"
    R"("rootPath":"\/data\/ab","scanDate":"2024-03-05T14:07:09Z","scanDuration":0.5,)"
    R"("totalSize":1500})";

QByteArray withoutSpaces(QByteArray text) {
    return text.replace(' ', "").replace('\n', "");
}

AnalysisResult decoded(const QByteArray& bytes) {
    QString error;
    const std::optional<AnalysisResult> result = json::decodeResult(bytes, &error);
    if (!result)
        qWarning("decoding failed: %s", qPrintable(error));
    return result.value_or(AnalysisResult{});
}

} // namespace

class JsonCodecTest : public QObject {
    Q_OBJECT

private slots:
    void fullResultRoundTrips() {
        const AnalysisResult original = sampleResult();
        const QByteArray bytes = json::encode(original);
        const AnalysisResult copy = decoded(bytes);
        QVERIFY(copy.folderTree.has_value());
        QVERIFY(copy == original);
        // Written again, it is the same text: nothing depends on hash or set order.
        QCOMPARE(json::encode(copy), bytes);
        QVERIFY(bytes.contains("\"totalSize\" : 9007199254740993"));
        QVERIFY(bytes.contains("\"fileCount\" : 9223372036854775807"));
        QVERIFY(bytes.contains("\"size\" : -9223372036854775808"));
        QVERIFY(bytes.contains("\"modificationDate\" : \"0001-01-01T00:00:00Z\""));
    }

    // A result without a folder tree has no member for it, and reads back. Pretty printed: two
    // spaces a level, " : " after names.
    void encodedText() {
        QByteArray bytes = json::encode(smallResult());
        QCOMPARE(withoutSpaces(bytes), smallResultText);
        QVERIFY(bytes.startsWith("{\n  \"categoryBreakdown\" : [\n    {\n      \"category\""));
        QCOMPARE(json::encode(decoded(bytes)), bytes);

        // Other writers may write an absent tree as null, and identities in lower case.
        bytes.replace("\"fileCount\" : 1,\n  \"folderCount\"",
                      "\"fileCount\" : 1,\n  \"folderTree\" : null,\n  \"folderCount\"");
        bytes.replace("0A1B2C3D-4E5F-4A6B-8C7D", "0a1b2c3d-4e5f-4a6b-8c7d");
        QVERIFY(!decoded(bytes).folderTree.has_value());
        QCOMPARE(decoded(bytes).id, fixedId(1));
    }

    // Pieces handed to a sink join up to exactly the text encoded whole, however they fall.
    void folderTreeInPieces() {
        FolderInfo root = *sampleResult().folderTree;
        // Wide enough for the text to pass a piece boundary many times over.
        for (int i = 0; i < 3000; ++i) {
            FolderInfo child;
            child.name = QStringLiteral("child %1").arg(i);
            child.location = FolderPath(root.location, child.name);
            child.totalSize = i;
            root.childFolders.push_back(child);
        }
        const QByteArray whole = json::encode(root);
        QVERIFY(whole.size() > 2 * json::JsonWriter::pieceBytes);

        QList<QByteArray> pieces;
        QVERIFY(json::encode(root, [&](QByteArrayView piece) {
            pieces.append(piece.toByteArray());
            return true;
        }));
        QVERIFY(pieces.size() > 2);
        QCOMPARE(pieces.join(), whole);

        // A sink that fails is not called again, and the failure is reported.
        int calls = 0;
        QVERIFY(!json::encode(root, [&](QByteArrayView) {
            ++calls;
            return false;
        }));
        QCOMPARE(calls, 1);
    }

    // Escapes alike before and after the first non-ASCII character and past the writer's buffer;
    // a child's path written from its parent's where it extends it, else on its own.
    void escapedNamesAndPaths() {
        const QString odd = QStringLiteral("q\"b\\s/n\nt\t\x01");
        const QByteArray oddEscaped = "q\\\"b\\\\s\\/n\\nt\\t\\u0001";
        FolderInfo root;
        root.name = QStringLiteral("/");
        root.location = FolderPath(root.name);
        FolderInfo child;
        child.name = QString(2000, u'a') + odd + QStringLiteral("\u00e9\U0001F600") + odd;
        child.location = FolderPath(root.location, child.name);
        FolderInfo grandchild;
        grandchild.name = QStringLiteral("n\nl");
        grandchild.location = FolderPath(child.location, grandchild.name);
        FolderInfo foreign;
        foreign.name = QStringLiteral("x");
        foreign.location = FolderPath(QStringLiteral("/elsewhere/x"));
        child.childFolders = {grandchild, foreign};
        root.childFolders = {child};

        const QByteArray bytes = json::encode(root);

        const QByteArray childName =
            QByteArray(2000, 'a') + oddEscaped + "\xc3\xa9\xf0\x9f\x98\x80" + oddEscaped;
        QVERIFY(bytes.contains("\"name\" : \"" + childName + "\""));
        QVERIFY(bytes.contains("\"path\" : \"\\/" + childName + "\""));
        QVERIFY(bytes.contains("\"path\" : \"\\/" + childName + "\\/n\\nl\""));
        QVERIFY(bytes.contains("\"path\" : \"\\/elsewhere\\/x\""));
        AnalysisResult result = smallResult();
        result.folderTree = root;
        QVERIFY(decoded(json::encode(result)).folderTree == root);
    }

    void dates() {
        const QDateTime utc(QDate(2024, 3, 5), QTime(14, 7, 9, 999), Qt::UTC);
        QCOMPARE(json::formatDate(utc.toOffsetFromUtc(-5 * 3600)), "2024-03-05T14:07:09Z");
        QCOMPARE(json::formatDate(QDateTime()), "0001-01-01T00:00:00Z");

        const QDateTime whole(QDate(2024, 3, 5), QTime(14, 7, 9), Qt::UTC);
        QCOMPARE(json::parseDate(u"2024-03-05T15:37:09+01:30"), whole);
        QCOMPARE(json::parseDate(u"2024-03-05T09:07:09-05:00"), whole);
        QCOMPARE(json::parseDate(u"0001-01-01T00:00:00Z"), distantPast());
        for (const char16_t* bad :
             {u"2024-03-05T14:07:09.5Z", u"2024-03-05 14:07:09Z", u"2024-03-05T14:07:09",
              u"2024-02-30T14:07:09Z", u"2024-03-05T24:00:00Z", u"2024-03-05T14:07:09+1:00",
              u"2024-03-05T14:07:09+01:60", u"2024-3-05T14:07:09Z", u"", u"0000-01-01T00:00:00Z"})
            QVERIFY2(!json::parseDate(bad).has_value(), qPrintable(QString::fromUtf16(bad)));
    }

    // Every row edits one spot of a valid encoded result; each edit must fail the whole decoding
    // with a message that names where the problem is.
    void editedMemberFails_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QString>("where");
        const auto row = [](const char* tag, const QByteArray& from, const QByteArray& to,
                            const char* where) {
            QTest::newRow(tag) << from << to << QString::fromLatin1(where);
        };
        row("missing top-level member", "\"rootName\" : \"root \\\"name\\\"\",", "", "rootName");
        row("missing member of a nested folder", "\"color\" : \"cyan\",", "",
            "folderTree.childFolders[0].childFolders[0].color");
        row("integer as text", "\"maxDepth\" : 10", "\"maxDepth\" : \"10\"", "maxDepth");
        row("fraction for an integer", "\"folderCount\" : 7", "\"folderCount\" : 7.5",
            "folderCount");
        row("integer beyond 64 bits", "\"fileCount\" : 9223372036854775807",
            "\"fileCount\" : 9223372036854775808", "fileCount");
        row("number for a bool", "\"isDirectory\" : true", "\"isDirectory\" : 1",
            "largestFiles[1].isDirectory");
        row("null for a list", "\"insights\" : [", "\"insights\" : null, \"x\" : [", "insights");
        row("number in a string list", "\"\\/tmp\\/root\\/.cache\"", "42", "insights[0].paths[0]");
        row("list for a map", "\"depthDistribution\" : {", "\"depthDistribution\" : [], \"x\" : {",
            "depthDistribution");
        row("depth key that is no number", "\"10\" : {", "\"ten\" : {", "depthDistribution.ten");
        row("category in lower case", "\"category\" : \"Documents\"",
            "\"category\" : \"documents\"", "largestFiles[2].category");
        row("unknown insight type", "\"type\" : \"Large Cache\"", "\"type\" : \"Big Cache\"",
            "insights[0].type");
        row("UUID in braces", "\"id\" : \"" + idText + "\"", "\"id\" : \"{" + idText + "}\"", "id");
        row("date as a number", "\"2024-03-05T14:07:09Z\"", "731340429", "scanDate");
    }

    void editedMemberFails() {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, where);
        AnalysisResult result = sampleResult();
        result.id = QUuid::fromString(QLatin1String(idText));
        const QByteArray valid = json::encode(result);
        QCOMPARE(valid.count(from), 1);
        QString error;
        QVERIFY(!json::decodeResult(QByteArray(valid).replace(from, to), &error).has_value());
        QVERIFY2(error.startsWith(where + QStringLiteral(": ")), qPrintable(error));
    }

    // Extensions are member names from whatever names a disk holds: U+FFFD beside a character
    // JSON escapes, and a byte that is not UTF-8 (an unpaired surrogate, written as an escape).
    void everyExtensionReadsBack() {
        for (const QStringList& extensions :
             {QStringList{QStringLiteral("\U0001F600"), QStringLiteral("\uFFFD\"")},
              QStringList{QStringLiteral("\U0001F600"), QStringLiteral("\uE000\t"), QString()},
              QStringList{QStringLiteral("\uFFFD"), QString(QChar(0xDCFF)),
                          QStringLiteral("a") + QChar(0xDCFE) + QStringLiteral("\U0001F600")}}) {
            AnalysisResult result;
            for (const QString& ext : extensions) {
                ExtensionStats stats;
                stats.ext = ext;
                stats.fileCount = 1;
                result.extensionStats.insert(ext, stats);
            }
            QCOMPARE(decoded(json::encode(result)).extensionStats, result.extensionStats);
        }
    }

    void malformedDocumentsFail() {
        const QByteArray valid = json::encode(sampleResult());
        for (const QByteArray& document :
             {valid.left(valid.size() / 2), QByteArray(), QByteArray("[]"), QByteArray("null"),
              QByteArray("{}"), valid + "{}", valid.left(valid.size() - 3)}) {
            QString error;
            QVERIFY(!json::decodeResult(document, &error).has_value());
            QVERIFY(!error.isEmpty());
        }
    }

private:
    const QByteArray idText = "5B7A0C1D-2E3F-4A5B-9C6D-7E8F90A1B2C3";
};

QTEST_APPLESS_MAIN(JsonCodecTest)
#include "JsonCodecTest.moc"
