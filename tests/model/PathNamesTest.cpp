#include "model/PathNames.h"

#include <QDir>
#include <QTest>

using namespace tessarine;

class PathNamesTest : public QObject {
    Q_OBJECT

private slots:
    void namesIgnoreTrailingSeparators_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("cleaned");
        QTest::addColumn<QString>("name");
        QTest::newRow("folder") << "/home/ann/Music"
                                << "/home/ann/Music"
                                << "Music";
        QTest::newRow("trailing separators") << "/home/ann/Music//"
                                             << "/home/ann/Music"
                                             << "Music";
        QTest::newRow("root") << "/"
                              << "/"
                              << "/";
        QTest::newRow("separators only") << "//"
                                         << "/"
                                         << "/";
        QTest::newRow("dot segments") << "/a/./b/../c"
                                      << "/a/c"
                                      << "c";
        QTest::newRow("spaces and quotes") << "/a/\"my b\" c"
                                           << "/a/\"my b\" c"
                                           << "\"my b\" c";
        QTest::newRow("relative") << "notes.md" << QDir::currentPath() + "/notes.md"
                                  << "notes.md";
        QTest::newRow("empty") << ""
                               << ""
                               << "";
    }

    void namesIgnoreTrailingSeparators() {
        QFETCH(QString, path);
        QFETCH(QString, cleaned);
        QFETCH(QString, name);
        QCOMPARE(lastPathComponent(path), name);
        QCOMPARE(cleanRootPath(path), cleaned);
    }
};

QTEST_GUILESS_MAIN(PathNamesTest)
#include "PathNamesTest.moc"
