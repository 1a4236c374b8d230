#pragma once

#include "model/ScanSummary.h"

#include <QList>
#include <QUuid>

#include <optional>
#include <utility>

namespace tessarine {

// The scans picked for a comparison or a bulk delete, by id: at most two, because a comparison
// takes two and a third pick would leave it unclear which one to drop.
class ScanSelection {
public:
    static constexpr qsizetype maximumCount = 2;

    // Deselects a selected scan, selects another while fewer than two are; otherwise does
    // nothing. Says whether the selection changed.
    bool toggle(const QUuid& id);
    bool contains(const QUuid& id) const { return m_ids.contains(id); }
    qsizetype count() const { return m_ids.size(); }
    bool clear();
    // Drops the ids no longer in the history, so that a scan deleted elsewhere does not stay
    // selected unseen. Says whether the selection changed.
    bool keepOnly(const QList<ScanSummary>& history);

    // The selected scans, in history order; an id selected twice in the history is taken once.
    QList<ScanSummary> selectedScans(const QList<ScanSummary>& history) const;
    // With exactly two selected: the first and the last selected scan in history order.
    std::optional<std::pair<ScanSummary, ScanSummary>>
    comparisonPair(const QList<ScanSummary>& history) const;

private:
    QList<QUuid> m_ids;
};

} // namespace tessarine
