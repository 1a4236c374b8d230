#include "storage/RecentResults.h"

namespace tessarine {

std::optional<AnalysisResult> RecentResults::find(const QUuid& id, const FileStamp& stamp) {
    for (qsizetype i = 0; i < m_kept.size(); ++i) {
        if (m_kept.at(i).result.id == id && m_kept.at(i).stamp == stamp) {
            m_kept.move(i, 0);
            return m_kept.first().result;
        }
    }
    return std::nullopt;
}

void RecentResults::keep(const AnalysisResult& result, const FileStamp& stamp) {
    forget(result.id);
    m_kept.prepend({result, stamp});
    if (m_kept.size() > capacity)
        m_kept.removeLast();
}

void RecentResults::forget(const QUuid& id) {
    m_kept.removeIf([&](const Kept& kept) { return kept.result.id == id; });
}

} // namespace tessarine
