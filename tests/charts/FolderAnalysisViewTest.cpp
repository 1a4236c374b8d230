#include "BuildHold.h"
#include "FileTrees.h"
#include "model/Records.h"
#include "tree/FolderTreeService.h"

#include <QDir>
#include <QLocale>
#include <QQmlEngine>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(Tessarine_AppPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ChartsPlugin)

using namespace tessarine;

namespace {

FolderInfo folder(const QString& name, qint64 size, FolderInfoList children = {}) {
    FolderInfo info;
    info.location = FolderPath("/Users/ann/" + name);
    info.name = name;
    info.totalSize = size;
    info.fileCount = size / 100;
    info.childFolders = std::move(children);
    return info;
}

} // namespace

// Folders on disk and results for the folder analysis tests.
class FolderFixtures : public QObject {
    Q_OBJECT

public:
    // A folder of three sub-folders, one of them nested two deep, and files of its own.
    Q_INVOKABLE QString makeTree(const QString& name) {
        const QString root = m_folders.filePath(name);
        testing::writeFiles(root, {{"top.bin", 1000},
                                   {"media/movie.mov", 60000},
                                   {"media/clips/a.mov", 20000},
                                   {"docs/report.pdf", 8000},
                                   {"code/main.cpp", 3000}});
        return root;
    }

    Q_INVOKABLE QString missingFolder() const { return m_folders.filePath("missing"); }
    Q_INVOKABLE void makeFolder(const QString& path) const { QDir().mkpath(path); }

    // What a scan of root would report, without its folder tree.
    Q_INVOKABLE tessarine::AnalysisResult resultOf(const QString& root) const {
        AnalysisResult result;
        result.rootPath = root;
        result.rootName = QDir(root).dirName();
        result.totalSize = 92000;
        result.folderCount = 4;
        return result;
    }

    // A result that carries its tree: three levels under "root", files beside the sub-folders.
    Q_INVOKABLE tessarine::AnalysisResult resultWithTree() const {
        AnalysisResult result = resultOf(QStringLiteral("/Users/ann"));
        FolderInfoList alpha{
            folder("alpha1", 400'000, {folder("deep", 300'000, {folder("deeper", 200'000)})}),
            folder("alpha2", 150'000)};
        FolderInfo root = folder("ann", 1'000'000,
                                 {folder("alpha", 600'000, std::move(alpha)),
                                  folder("beta", 300'000, {folder("beta1", 300'000)})});
        result.totalSize = root.totalSize;
        result.folderTree = SharedFolderTree(std::move(root));
        return result;
    }

    // A result whose tree is a chain of depth folders, each inside the one before.
    Q_INVOKABLE tessarine::AnalysisResult resultWithChain(int depth) const {
        AnalysisResult result = resultOf(QStringLiteral("/Users/ann"));
        FolderInfo chain = folder(QStringLiteral("bottom"), 100);
        for (int level = depth; level > 0; --level) {
            FolderInfo parent = folder(QString::number(level), 100);
            parent.childFolders.push_back(std::move(chain));
            chain = std::move(parent);
        }
        result.folderTree = SharedFolderTree(std::move(chain));
        return result;
    }

    // Holds the service's next build in phase ("enumerating" or "building") until cancelled.
    Q_INVOKABLE void holdBuild(tessarine::FolderTreeService* service, const QString& phase) {
        testing::holdBuildInPhase(*service, phase == QLatin1String("building")
                                                ? FolderTreeProgress::Phase::building
                                                : FolderTreeProgress::Phase::enumerating);
    }

private:
    QTemporaryDir m_folders;
};

class FolderAnalysisSetup : public QObject {
    Q_OBJECT

public slots:
    void applicationAvailable() {
        QStandardPaths::setTestModeEnabled(true);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral(":/"));
        qmlRegisterSingletonInstance("Tessarine.Fixtures", 1, 0, "FolderFixtures", &m_fixtures);
    }

private:
    FolderFixtures m_fixtures;
};

QUICK_TEST_MAIN_WITH_SETUP(FolderAnalysisViewTest, FolderAnalysisSetup)

#include "FolderAnalysisViewTest.moc"
