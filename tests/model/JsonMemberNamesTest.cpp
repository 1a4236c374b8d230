#include "model/Json.h"

#include <QTest>

using namespace tessarine;

// Extensions are member names in a stored result, and come from whatever names a disk holds.
class JsonMemberNamesTest : public QObject {
    Q_OBJECT

private slots:
    void everyExtensionReadsBack_data() {
        QTest::addColumn<QStringList>("extensions");
        // A byte that is not UTF-8 decodes to U+FFFD; beside an emoji, an extension holding it and
        // a character that JSON escapes was listed by Qt's reader but not found by name.
        QTest::newRow("not UTF-8 and a quote, beside an emoji")
            << QStringList{QStringLiteral("\U0001F600"), QStringLiteral("\uFFFD\"")};
        QTest::newRow("private use and a control, beside an emoji")
            << QStringList{QStringLiteral("\U0001F600"), QStringLiteral("\uE000\t"), QString()};
    }

    void everyExtensionReadsBack() {
        QFETCH(QStringList, extensions);
        AnalysisResult result;
        for (const QString& ext : extensions) {
            ExtensionStats stats;
            stats.ext = ext;
            stats.fileCount = 1;
            result.extensionStats.insert(ext, stats);
        }
        QString error;
        const std::optional<AnalysisResult> decoded =
            json::decodeResult(json::encode(result), &error);
        QVERIFY2(decoded, qPrintable(error));
        QCOMPARE(decoded->extensionStats, result.extensionStats);
    }
};

QTEST_GUILESS_MAIN(JsonMemberNamesTest)
#include "JsonMemberNamesTest.moc"
