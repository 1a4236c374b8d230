#include "TestFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace tessarine::test {

void writeFile(const QString& path, qint64 size) {
    QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(QByteArray(size, 'x')), size);
}

void writeManyFiles(const QString& root, int folders, int filesPerFolder) {
    for (int folder = 0; folder < folders; ++folder) {
        const QString directory =
            root + QStringLiteral("/group%1/folder%2").arg(folder % 40).arg(folder);
        QVERIFY(QDir().mkpath(directory));
        for (int file = 0; file < filesPerFolder; ++file) {
            QFile item(directory + QStringLiteral("/item%1.txt").arg(file));
            QVERIFY(item.open(QIODevice::WriteOnly));
            item.write("data");
        }
    }
}

} // namespace tessarine::test
