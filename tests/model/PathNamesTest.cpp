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
        QTest::addColumn<QString>("parent");
        QTest::newRow("trailing separators") << "/home/ann/Music//"
                                             << "/home/ann/Music"
                                             << "Music"
                                             << "/home/ann";
        QTest::newRow("root") << "/"
                              << "/"
                              << "/"
                              << "/";
        QTest::newRow("top level") << "/srv"
                                   << "/srv"
                                   << "srv"
                                   << "/";
        QTest::newRow("separators only") << "//"
                                         << "/"
                                         << "/"
                                         << "/";
        QTest::newRow("dot segments") << "/a/./b/../c"
                                      << "/a/c"
                                      << "c"
                                      << "/a/./b/..";
        QTest::newRow("relative") << "notes.md" << QDir::currentPath() + "/notes.md"
                                  << "notes.md"
                                  << "";
        QTest::newRow("empty") << ""
                               << ""
                               << ""
                               << "";
    }

    void namesIgnoreTrailingSeparators() {
        QFETCH(QString, path);
        QFETCH(QString, cleaned);
        QFETCH(QString, name);
        QFETCH(QString, parent);
        QCOMPARE(lastPathComponent(path), name);
        QCOMPARE(cleanRootPath(path), cleaned);
        QCOMPARE(parentFolder(path), parent);
    }
};

QTEST_GUILESS_MAIN(PathNamesTest)
#include "PathNamesTest.moc"
