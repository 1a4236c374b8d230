#include "SampleHistory.h"

#include "DashboardResult.h"

#include "storage/PersistenceService.h"

#include <QTest>

namespace tessarine::testing {

AnalysisResult sampleResult(const QString& rootPath, const QDateTime& scanDate) {
    AnalysisResult result = dashboardResult(rootPath, 4, 8, 3, 2);
    result.scanDate = scanDate;
    return result;
}

ScanProgress sampleProgress(const QString& currentPath) {
    ScanProgress progress;
    progress.phase = ScanPhase::analyzing;
    progress.filesScanned = 1'200;
    progress.foldersScanned = 300;
    progress.bytesScanned = 5'000'000;
    progress.currentPath = currentPath;
    progress.startTime = QDateTime::currentDateTimeUtc().addSecs(-30);
    progress.estimatedTotalFiles = 3'000;
    return progress;
}

void storeSampleHistory(PersistenceService& store, int count) {
    const QDateTime newest(QDate(2025, 6, 1), QTime(10, 0), Qt::UTC);
    for (int i = 0; i < count; ++i) {
        const QString root =
            i == 0 ? QStringLiteral("/") : QStringLiteral("/Users/ann/Project %1").arg(i);
        QVERIFY(!store.save(sampleResult(root, newest.addDays(-i))));
    }
}

} // namespace tessarine::testing
