#include "SampleHistory.h"

#include "DashboardResult.h"

#include "storage/PersistenceService.h"

#include <QTest>

namespace tessarine::testing {

AnalysisResult sampleResult(const QString& rootPath, const QDateTime& scanDate) {
    AnalysisResult result = dashboardResult(rootPath, 4, 8, 3, 2);
    if (rootPath == u"/")
        result.rootName = rootPath;
    result.scanDate = scanDate;
    return result;
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
