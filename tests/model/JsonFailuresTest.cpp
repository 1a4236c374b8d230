#include "SampleRecords.h"

#include "model/Json.h"

#include <QTest>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

const char* const resultId = "5B7A0C1D-2E3F-4A5B-9C6D-7E8F90A1B2C3";

} // namespace

// Every row edits one spot of a valid encoded result; each edit must fail the whole decoding with
// a message that names where the problem is.
class JsonFailuresTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        AnalysisResult result = fullResult();
        result.id = QUuid::fromString(QLatin1String(resultId));
        valid = json::encode(result);
        QVERIFY(json::decodeResult(valid).has_value());
    }

    void editedMemberFails_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QString>("where");

        QTest::newRow("missing top-level member")
            << QByteArray("\"rootName\" : \"root \\\"name\\\"\",") << QByteArray() << "rootName";
        QTest::newRow("missing member of a file") << QByteArray("\"isDirectory\" : true,")
                                                  << QByteArray() << "largestFiles[1].isDirectory";
        QTest::newRow("missing member of a nested folder")
            << QByteArray("\"color\" : \"cyan\",") << QByteArray()
            << "folderTree.childFolders[0].childFolders[0].color";
        QTest::newRow("integer as text")
            << QByteArray("\"maxDepth\" : 10") << QByteArray("\"maxDepth\" : \"10\"") << "maxDepth";
        QTest::newRow("fraction for an integer")
            << QByteArray("\"folderCount\" : 7") << QByteArray("\"folderCount\" : 7.5")
            << "folderCount";
        QTest::newRow("integer beyond 64 bits")
            << QByteArray("\"fileCount\" : 9223372036854775807")
            << QByteArray("\"fileCount\" : 9223372036854775808") << "fileCount";
        QTest::newRow("number for a bool")
            << QByteArray("\"isDirectory\" : true") << QByteArray("\"isDirectory\" : 1")
            << "largestFiles[1].isDirectory";
        QTest::newRow("text for a number")
            << QByteArray("\"scanDuration\" : 12.345")
            << QByteArray("\"scanDuration\" : \"12.345\"") << "scanDuration";
        QTest::newRow("null for a list")
            << QByteArray("\"insights\" : [") << QByteArray("\"insights\" : null, \"x\" : [")
            << "insights";
        QTest::newRow("number in a string list") << QByteArray("\"\\/tmp\\/root\\/.cache\"")
                                                 << QByteArray("42") << "insights[0].paths[0]";
        QTest::newRow("list for a map")
            << QByteArray("\"depthDistribution\" : {")
            << QByteArray("\"depthDistribution\" : [], \"x\" : {") << "depthDistribution";
        QTest::newRow("depth key that is no number")
            << QByteArray("\"10\" : {") << QByteArray("\"ten\" : {") << "depthDistribution.ten";
        QTest::newRow("unknown category")
            << QByteArray("\"category\" : \"3D & Design\"")
            << QByteArray("\"category\" : \"3D and Design\"") << "categoryBreakdown[1].category";
        QTest::newRow("category in lower case")
            << QByteArray("\"category\" : \"Documents\"")
            << QByteArray("\"category\" : \"documents\"") << "largestFiles[2].category";
        QTest::newRow("unknown insight type")
            << QByteArray("\"type\" : \"Large Cache\"") << QByteArray("\"type\" : \"Big Cache\"")
            << "insights[0].type";
        QTest::newRow("unknown folder colour")
            << QByteArray("\"color\" : \"mint\"") << QByteArray("\"color\" : \"Mint\"")
            << "folderTree.childFolders[1].color";
        QTest::newRow("bad UUID") << (QByteArray("\"id\" : \"") + resultId + "\"")
                                  << QByteArray("\"id\" : \"not-a-uuid\"") << "id";
        QTest::newRow("UUID in braces") << (QByteArray("\"id\" : \"") + resultId + "\"")
                                        << (QByteArray("\"id\" : \"{") + resultId + "}\"") << "id";
        QTest::newRow("date with fraction")
            << QByteArray("\"2024-03-05T14:07:09Z\"") << QByteArray("\"2024-03-05T14:07:09.250Z\"")
            << "scanDate";
        QTest::newRow("date as a number")
            << QByteArray("\"2024-03-05T14:07:09Z\"") << QByteArray("731340429") << "scanDate";
    }

    void editedMemberFails() {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, where);
        QCOMPARE(valid.count(from), 1);
        QByteArray edited = valid;
        edited.replace(from, to);
        QString error;
        QVERIFY(!json::decodeResult(edited, &error).has_value());
        QVERIFY2(error.startsWith(where + QStringLiteral(": ")), qPrintable(error));
    }

    void malformedDocumentsFail() {
        const QList<QByteArray> documents = {
            valid.left(valid.size() / 2), QByteArray(), "[]", "null", "{}", valid + "{}",
            valid.left(valid.size() - 3)};
        for (const QByteArray& document : documents) {
            QString error;
            QVERIFY(!json::decodeResult(document, &error).has_value());
            QVERIFY(!error.isEmpty());
        }
    }

private:
    QByteArray valid;
};

QTEST_APPLESS_MAIN(JsonFailuresTest)
#include "JsonFailuresTest.moc"
