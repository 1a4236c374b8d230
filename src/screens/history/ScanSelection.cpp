#include "ScanSelection.h"

#include <QSet>

namespace tessarine {

bool ScanSelection::toggle(const QUuid& id) {
    if (m_ids.removeOne(id))
        return true;
    if (m_ids.size() >= maximumCount)
        return false;
    m_ids.append(id);
    return true;
}

bool ScanSelection::clear() {
    if (m_ids.isEmpty())
        return false;
    m_ids.clear();
    return true;
}

bool ScanSelection::keepOnly(const QList<ScanSummary>& history) {
    if (m_ids.isEmpty())
        return false;
    QSet<QUuid> present;
    for (const ScanSummary& result : history)
        present.insert(result.id);
    return m_ids.removeIf([&](const QUuid& id) { return !present.contains(id); }) > 0;
}

QList<ScanSummary> ScanSelection::selectedScans(const QList<ScanSummary>& history) const {
    QList<ScanSummary> scans;
    QSet<QUuid> taken;
    for (const ScanSummary& result : history) {
        if (contains(result.id) && !taken.contains(result.id)) {
            taken.insert(result.id);
            scans.append(result);
        }
    }
    return scans;
}

std::optional<std::pair<ScanSummary, ScanSummary>>
ScanSelection::comparisonPair(const QList<ScanSummary>& history) const {
    const QList<ScanSummary> scans = selectedScans(history);
    if (m_ids.size() != maximumCount || scans.size() != maximumCount)
        return std::nullopt;
    return std::pair(scans.first(), scans.last());
}

} // namespace tessarine
