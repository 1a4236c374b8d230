#include "ScreenFixtures.h"

#include "app/AppState.h"
#include "storage/PersistenceService.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tessarine {

namespace {

AnalysisResult resultOf(const QString& rootPath) {
    AnalysisResult result;
    result.rootPath = rootPath;
    result.rootName = rootPath.section(u'/', -1);
    result.scanDate = QDateTime::currentDateTimeUtc().addSecs(-7200);
    result.totalSize = 2'500'000'000;
    result.fileCount = 1'234;
    result.folderCount = 87;
    result.maxDepth = 12;
    result.scanDuration = 12.3;
    return result;
}

PatternInsight insight(InsightType type, const char* title, qint64 affectedSize) {
    PatternInsight insight;
    insight.type = type;
    insight.title = QString::fromLatin1(title);
    insight.description = QStringLiteral("Found in 3 places");
    insight.affectedSize = affectedSize;
    insight.affectedCount = 3;
    return insight;
}

} // namespace

ScreenFixtures::ScreenFixtures(AppState& state, PersistenceService& store, QObject* parent)
    : QObject(parent)
    , m_state(state)
    , m_store(store) {}

void ScreenFixtures::fillHistory(int count) {
    QList<AnalysisResult> results;
    for (int n = count; n >= 1; --n) {
        AnalysisResult result = resultOf(QStringLiteral("/Users/ann/Scan %1").arg(n));
        result.scanDate = QDateTime::currentDateTimeUtc().addDays(n - count);
        results.append(std::move(result));
    }
    // Disk and list agree, so that the application's reload after a change on disk keeps them.
    const auto stored = m_store.loadAll();
    if (const auto* results = std::get_if<QList<AnalysisResult>>(&stored))
        for (const AnalysisResult& result : *results)
            m_store.deleteResult(result);
    for (const AnalysisResult& result : results)
        m_store.save(result);
    m_state.scanHistory()->reset(results);
}

void ScreenFixtures::saveElsewhere(const QString& rootPath, double hoursAgo) {
    AnalysisResult result = resultOf(rootPath);
    result.scanDate = QDateTime::currentDateTimeUtc().addSecs(qint64(-hoursAgo * 3600));
    result.totalSize += 400'000'000;
    PersistenceService(QFileInfo(m_store.storagePath()).path()).save(result);
}

void ScreenFixtures::showProgress(const QString& currentPath) {
    ScanProgress progress;
    progress.phase = ScanPhase::analyzing;
    progress.filesScanned = 1'200;
    progress.foldersScanned = 300;
    progress.bytesScanned = 5'000'000;
    progress.currentPath = currentPath;
    progress.startTime = QDateTime::currentDateTimeUtc().addSecs(-30);
    progress.estimatedTotalFiles = 3'000;
    m_state.setScanProgress(progress);
}

void ScreenFixtures::clearProgress() {
    m_state.setScanProgress({});
}

void ScreenFixtures::showResult(const QString& rootPath, bool withInsights) {
    AnalysisResult result = resultOf(rootPath);
    if (withInsights)
        result.insights = {insight(InsightType::largeCache, "Large cache files", 150'000'000),
                           insight(InsightType::emptyFolders, "Empty folders", 0)};
    m_state.setCurrentResult(result);
}

QString ScreenFixtures::makeFolder(const QString& name) {
    const QString path = m_folders.filePath(name);
    QDir().mkpath(path);
    QFile file(path + QStringLiteral("/notes.txt"));
    if (file.open(QIODevice::WriteOnly))
        file.write("some notes\n");
    return path;
}

QString ScreenFixtures::makeFile(const QString& name) {
    const QString path = m_folders.filePath(name);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("a file, not a folder\n");
    return path;
}

QString ScreenFixtures::screenshotPath(const QString& name) const {
    QDir().mkpath(QStringLiteral(SCREENSHOT_DIR));
    return QStringLiteral(SCREENSHOT_DIR "/") + name + QStringLiteral(".png");
}

} // namespace tessarine
