#include "RecordedDesktop.h"
#include "model/Json.h"
#include "model/PathBytes.h"
#include "scanner/FileSystemScanner.h"
#include "screens/dashboard/FileActions.h"
#include "storage/PersistenceService.h"
#include "tree/FolderTreeService.h"

#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>

using namespace tessarine;

namespace {

namespace fs = std::filesystem;

fs::path native(const QByteArray& bytes) {
    return fs::path(bytes.toStdString());
}

void writeRawFile(const QByteArray& path, qint64 size) {
    fs::create_directories(native(path).parent_path());
    std::ofstream(native(path)) << std::string(std::size_t(size), 'x');
}

// The size of the file that the text path leads to on the disk; -1 when it leads nowhere.
qint64 sizeOnDisk(const QString& path) {
    struct stat status;
    return ::lstat(pathToBytes(path).constData(), &status) == 0 ? qint64(status.st_size) : -1;
}

QStringList pathsOf(const QList<FileInfo>& files) {
    QStringList paths;
    for (const FileInfo& file : files)
        paths.append(file.path);
    return paths;
}

} // namespace

// Names from an old Latin-1 disk, names that differ only in a byte that is not UTF-8, and a real
// U+FFFD, below a folder whose own name is not UTF-8: every path the program keeps of them must
// lead back to the very file it was read from.
class NameBytesTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        QVERIFY(m_base.isValid());
        m_root = QFile::encodeName(m_base.path()) + "/caf\xe9";
        // Each file's size is its mark: no two are alike.
        m_files = {{"x\xff.txt", 3}, {"x\xfe.txt", 2}, {"x\xef\xbf\xbd.txt", 1}};
        for (int i = 0; i < 8; ++i) {
            const char letter = char(0xE0 + i); // à, á, â, ... in Latin-1
            m_files.append({QByteArray("d") + letter + "/n" + letter + ".txt", 10 + i});
        }
        for (const auto& [name, size] : std::as_const(m_files))
            writeRawFile(m_root + '/' + name, size);
    }

    void cleanup() { fs::remove_all(native(m_root)); }

    void scanHistoryAndExportsKeepTheBytes() {
        const QString rootPath = pathFromBytes(m_root);
        const ScanOutcome outcome = FileSystemScanner().scan(rootPath);
        QVERIFY(std::holds_alternative<AnalysisResult>(outcome));
        const auto& result = std::get<AnalysisResult>(outcome);
        QCOMPARE(result.rootPath, rootPath);
        // Every size is another: each path leads to its own file.
        QCOMPARE(result.largestFiles.size(), m_files.size());
        for (const FileInfo& file : result.largestFiles)
            QCOMPARE(sizeOnDisk(file.path), file.size);

        QTemporaryDir home;
        PersistenceService store(home.path());
        QVERIFY(!store.save(result));
        const auto listed = store.loadSummaries();
        QVERIFY(std::holds_alternative<QList<ScanSummary>>(listed));
        QCOMPARE(std::get<QList<ScanSummary>>(listed).value(0).rootPath, rootPath);
        const auto loaded = store.loadResult(result.id);
        QVERIFY(std::holds_alternative<AnalysisResult>(loaded));
        QCOMPARE(pathsOf(std::get<AnalysisResult>(loaded).largestFiles),
                 pathsOf(result.largestFiles));
        const QByteArray exported = json::encode(result);
        QVERIFY(exported.contains("caf\\udce9"));
        QCOMPARE(pathsOf(json::decodeResult(exported)->largestFiles), pathsOf(result.largestFiles));
    }

    void folderTreeLeadsToEachFolder() {
        const FolderTreeOutcome outcome = FolderTreeService().build(pathFromBytes(m_root));
        QVERIFY(std::holds_alternative<FolderInfo>(outcome));
        const FolderInfo& tree = std::get<FolderInfo>(outcome);
        QCOMPARE(qsizetype(tree.childFolders.size()), 8);
        for (const FolderInfo* folder : tree.flattened())
            QVERIFY(fs::is_directory(native(pathToBytes(folder->path()))));
    }

    void revealOpenAndCopyHandOverTheBytes() {
        RecordedDesktop desktop;
        FileActions::setServices(&desktop);
        FileActions actions;
        const QString path = pathFromBytes(m_root + "/x\xff.txt");
        QVERIFY(actions.reveal(path));
        QVERIFY(actions.open(path));
        // A file that is not there, or no file at all, reaches the desktop as nothing.
        QVERIFY(!actions.open(pathFromBytes(m_root + "/x\xfd.txt")));
        QVERIFY(!actions.reveal(pathFromBytes(m_root + "/x\xfd.txt")));
        actions.copyPaths({});
        actions.copyPaths({path});
        FileActions::setServices(nullptr);
        const QByteArray bytes = m_root + "/x\xff.txt";
        QCOMPARE(desktop.handed.size(), 3);
        QCOMPARE(QByteArray::fromPercentEncoding(desktop.handed[0]), "file://" + bytes);
        QCOMPARE(QByteArray::fromPercentEncoding(desktop.handed[1]), "file://" + bytes);
        QCOMPARE(desktop.handed[2], bytes);
    }

private:
    QTemporaryDir m_base;
    QByteArray m_root;
    QList<std::pair<QByteArray, qint64>> m_files;
};

QTEST_GUILESS_MAIN(NameBytesTest)
#include "NameBytesTest.moc"
