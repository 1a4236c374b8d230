#include "ScanFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace tessarine::testing {

void writeFile(const QString& path, qint64 size) {
    QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(QByteArray(size, 'x')), size);
}

void makeScannableFolder(const QString& root, int fileCount) {
    for (int i = 0; i < fileCount; ++i)
        writeFile(root + QStringLiteral("/level%1/file %2.txt").arg(i % 3).arg(i), 100 * (i + 1));
}

} // namespace tessarine::testing
