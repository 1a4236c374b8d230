#include "ScanHistoryModel.h"

namespace tessarine {

void ScanHistoryModel::reset(QList<ScanSummary> results) {
    resetRows(std::move(results));
    emit scansChanged();
}

void ScanHistoryModel::prepend(const ScanSummary& result) {
    insertRow(0, result);
    emit scansChanged();
}

void ScanHistoryModel::removeAll(const QUuid& id) {
    for (int row = count() - 1; row >= 0; --row) {
        if (m_rows.at(row).id == id)
            removeRowAt(row);
    }
    emit scansChanged();
}

void ScanHistoryModel::sync(const QList<ScanSummary>& latest) {
    syncRows(latest);
    emit scansChanged();
}

} // namespace tessarine
