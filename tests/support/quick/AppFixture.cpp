#include "AppFixture.h"

#include "SampleHistory.h"

#include "BuildHold.h"
#include "DashboardResult.h"
#include "FileTrees.h"
#include "SampleResults.h"

#include "app/AppState.h"
#include "scanner/FileSystemScanner.h"
#include "screens/dashboard/FileActions.h"
#include "storage/FolderSizesFile.h"
#include "storage/PersistenceService.h"
#include "tree/FolderTreeService.h"

#include <QDir>
#include <QFileInfo>
#include <QtCore/qtestsupport_core.h>

namespace tessarine {

namespace {

AnalysisResult resultOf(const QString& rootPath) {
    AnalysisResult result = testing::plainResult(
        rootPath, QDateTime::currentDateTimeUtc().addSecs(-7200), 2'500'000'000);
    result.fileCount = 1'234;
    result.folderCount = 87;
    result.maxDepth = 12;
    result.scanDuration = 12.3;
    return result;
}

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

AppFixture::AppFixture(QObject* parent)
    : QObject(parent)
    , m_store(std::make_unique<PersistenceService>(m_home.path())) {
    testing::writeFolders(m_files.filePath(QStringLiteral("folder")), 3, 2);
    testing::storeSampleHistory(*m_store, 7);
    m_state = std::make_unique<AppState>(*m_store);
    // Without a summary index beside them, the stored scans arrive from a look on another thread.
    if (!QTest::qWaitFor([this] { return m_state->scanHistory()->count() == 7; }))
        qWarning("The stored sample scans did not arrive");
    AppState::setSharedInstance(m_state.get());
    FileActions::setServices(&m_desktop);
}

AppFixture::~AppFixture() {
    FileActions::setServices(nullptr);
}

QStringList AppFixture::takeDesktopRequests() {
    return std::exchange(m_desktop.requests, {});
}

void AppFixture::showFullResult() {
    AnalysisResult result =
        testing::dashboardResult(m_files.filePath(QStringLiteral("Projects")), 12, 40, 20, 100);
    for (const FileInfo& file : std::as_const(result.largestFiles))
        testing::writeFile(file.path, 1);
    result.insights = testing::sampleInsights();
    m_state->setCurrentResult(result);
}

QString AppFixture::folderPath() const {
    return m_files.filePath(QStringLiteral("folder"));
}

QUrl AppFixture::folderUrl() const {
    return QUrl::fromLocalFile(folderPath());
}

// Made on first use: most test files never scan it, and writing it is most of a fixture's cost.
QUrl AppFixture::largeFolderUrl() const {
    const QString path = m_files.filePath(QStringLiteral("large"));
    if (!QFileInfo::exists(path))
        testing::writeFolders(path, 50, 100);
    return QUrl::fromLocalFile(path);
}

bool AppFixture::dragOver(QQuickItem* over, const QUrl& url) {
    m_drag = std::make_unique<testing::WindowDrag>(over, QList<QUrl>{url});
    return m_drag->enter();
}

// A drag ends with its drop or its leave: the item it was over may be gone by the next test.
int AppFixture::drop() {
    return m_drag ? std::exchange(m_drag, nullptr)->drop() : Qt::IgnoreAction;
}

void AppFixture::leave() {
    if (m_drag)
        std::exchange(m_drag, nullptr)->leave();
}

void AppFixture::forgetFolderScans() {
    const QList<ScanSummary> stored = m_state->scanHistory()->results();
    for (const ScanSummary& scan : stored)
        if (scan.rootPath.startsWith(m_files.path()))
            m_state->deleteScan(scan);
}

void AppFixture::fillHistory(int count) {
    // Disk and list agree, so that the application's reload after a change on disk keeps them:
    // scans an earlier test saved behind the list's back go too.
    const auto stored = m_store->loadSummaries();
    if (const auto* summaries = std::get_if<QList<ScanSummary>>(&stored))
        for (const ScanSummary& scan : *summaries)
            m_store->deleteResult(scan.id);
    QList<ScanSummary> summaries;
    for (int n = count; n >= 1; --n) {
        AnalysisResult result = resultOf(QStringLiteral("/Users/ann/Scan %1").arg(n));
        result.scanDate = QDateTime::currentDateTimeUtc().addDays(n - count);
        m_store->save(result);
        summaries.append(ScanSummary::of(result));
    }
    m_state->scanHistory()->reset(summaries);
}

void AppFixture::saveElsewhere(const QString& rootPath, double hoursAgo) {
    AnalysisResult result = resultOf(rootPath);
    result.scanDate = QDateTime::currentDateTimeUtc().addSecs(qint64(-hoursAgo * 3600));
    result.totalSize += 400'000'000;
    PersistenceService(QFileInfo(m_store->storagePath()).path()).save(result);
}

void AppFixture::showProgress(const QString& currentPath) {
    m_state->setScanProgress(testing::sampleProgress(currentPath));
}

void AppFixture::clearProgress() {
    m_state->setScanProgress(std::nullopt);
}

void AppFixture::showEmptyResult() {
    AnalysisResult result = resultOf(m_files.filePath(QStringLiteral("empty")));
    result.totalSize = 0;
    result.fileCount = 2;
    CategoryStats documents;
    documents.category = FileCategory::documents;
    documents.fileCount = 2;
    result.categoryBreakdown = {documents};
    for (const QString& name : {QString(255, u'n'), QStringLiteral("two\nlines.txt")})
        result.largestFiles.append(testing::sampleFile(
            result.rootPath + u'/' + name, 0, QStringLiteral("txt"), FileCategory::documents));
    result.depthDistribution[1] = DepthStats{2, 0, 0};
    m_state->setCurrentResult(result);
}

QString AppFixture::makeFile(const QString& name) {
    return testing::writeFile(m_files.filePath(QStringLiteral("made/") + name), 21);
}

QString AppFixture::makeTree(const QString& name) {
    const QString root = m_files.filePath(QStringLiteral("trees/") + name);
    testing::writeFiles(root, {{"top.bin", 1000},
                               {"media/movie.mov", 60000},
                               {"media/clips/a.mov", 20000},
                               {"docs/report.pdf", 8000},
                               {"code/main.cpp", 3000}});
    return root;
}

QString AppFixture::missingFolder() const {
    return m_files.filePath(QStringLiteral("missing"));
}

void AppFixture::createFolderAt(const QString& path) const {
    QDir().mkpath(path);
}

AnalysisResult AppFixture::saveScan(const QString& root) {
    FileSystemScanner scanner;
    const AnalysisResult result = std::get<AnalysisResult>(scanner.scan(root));
    if (m_store->save(result) ||
        saveFolderSizes(m_store->storagePath(), result.id, *scanner.folderSizes()))
        qFatal("cannot store a scan of %s", qPrintable(root));
    return result;
}

AnalysisResult AppFixture::resultWithoutTree(const QString& root) const {
    AnalysisResult result = testing::plainResult(root, {}, 92000);
    result.folderCount = 4;
    return result;
}

AnalysisResult AppFixture::resultWithTree() const {
    AnalysisResult result = resultWithoutTree(QStringLiteral("/Users/ann"));
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

AnalysisResult AppFixture::resultWithChain(int depth) const {
    AnalysisResult result = resultWithoutTree(QStringLiteral("/Users/ann"));
    FolderInfo chain = folder(QStringLiteral("bottom"), 100);
    for (int level = depth; level > 0; --level) {
        FolderInfo parent = folder(QString::number(level), 100);
        parent.childFolders.push_back(std::move(chain));
        chain = std::move(parent);
    }
    result.folderTree = SharedFolderTree(std::move(chain));
    return result;
}

void AppFixture::holdBuild(FolderTreeService* service) {
    testing::holdBuildHalfWay(*service);
}

} // namespace tessarine
