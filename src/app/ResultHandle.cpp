#include "ResultHandle.h"

#include "model/FileCategory.h"
#include "model/InsightType.h"
#include "model/PathNames.h"

#include <QVariantMap>

#include <algorithm>

namespace tessarine {

ResultHandle::ResultHandle(std::shared_ptr<const AnalysisResult> result)
    : m_result(std::move(result)) {}

ResultHandle::ResultHandle(AnalysisResult result)
    : m_result(std::make_shared<const AnalysisResult>(std::move(result))) {}

// The upper-case form the history files are named by.
QString ResultHandle::id() const {
    return m_result ? m_result->id.toString(QUuid::WithoutBraces).toUpper() : QString();
}

QString ResultHandle::rootName() const {
    return m_result ? m_result->rootName : QString();
}

QString ResultHandle::rootPath() const {
    return m_result ? m_result->rootPath : QString();
}

QString ResultHandle::folderName() const {
    const QString path = rootPath();
    if (path.isEmpty())
        return QStringLiteral("Unknown");
    // The sidebar names a folder by the text after its path's last "/": the root has no name.
    const QString name = lastPathComponent(path);
    return name == u'/' ? QString() : name;
}

QDateTime ResultHandle::scanDate() const {
    return m_result ? m_result->scanDate : QDateTime();
}

qint64 ResultHandle::totalSize() const {
    return m_result ? m_result->totalSize : 0;
}

qint64 ResultHandle::fileCount() const {
    return m_result ? m_result->fileCount : 0;
}

qint64 ResultHandle::folderCount() const {
    return m_result ? m_result->folderCount : 0;
}

qint64 ResultHandle::maxDepth() const {
    return m_result ? m_result->maxDepth : 0;
}

double ResultHandle::scanDuration() const {
    return m_result ? m_result->scanDuration : 0;
}

QString ResultHandle::formattedDuration() const {
    return m_result ? m_result->formattedDuration() : QString();
}

QVariantList ResultHandle::categoryBreakdown() const {
    if (!m_result)
        return {};
    QList<CategoryStats> sorted = m_result->categoryBreakdown;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return a.totalSize > b.totalSize; });
    QVariantList list;
    list.reserve(sorted.size());
    for (const CategoryStats& stats : sorted) {
        list.append(QVariantMap{
            {QStringLiteral("category"), static_cast<int>(stats.category)},
            {QStringLiteral("name"), rawValue(stats.category)},
            {QStringLiteral("symbol"), iconName(stats.category)},
            {QStringLiteral("color"), colorName(stats.category)},
            {QStringLiteral("fileCount"), stats.fileCount},
            {QStringLiteral("totalSize"), stats.totalSize},
        });
    }
    return list;
}

QVariantList ResultHandle::insights() const {
    if (!m_result)
        return {};
    QVariantList list;
    list.reserve(m_result->insights.size());
    for (const PatternInsight& insight : m_result->insights) {
        list.append(QVariantMap{
            {QStringLiteral("type"), static_cast<int>(insight.type)},
            {QStringLiteral("typeName"), rawValue(insight.type)},
            {QStringLiteral("title"), insight.title},
            {QStringLiteral("description"), insight.description},
            {QStringLiteral("affectedSize"), insight.affectedSize},
            {QStringLiteral("affectedCount"), insight.affectedCount},
            {QStringLiteral("paths"), insight.paths},
        });
    }
    return list;
}

bool operator==(const ResultHandle& a, const ResultHandle& b) {
    if (a.m_result == b.m_result)
        return true;
    if (!a.m_result || !b.m_result || a.m_result->id != b.m_result->id)
        return false;
    return *a.m_result == *b.m_result;
}

} // namespace tessarine
