#include "ScanHistoryModel.h"

namespace tessarine {

void ScanHistoryModel::reset(QList<AnalysisResult> results) {
    resetRows(std::move(results));
}

void ScanHistoryModel::prepend(const AnalysisResult& result) {
    insertRow(0, result);
}

void ScanHistoryModel::removeAll(const QUuid& id) {
    for (int row = count() - 1; row >= 0; --row) {
        if (m_rows.at(row).id == id)
            removeRowAt(row);
    }
}

} // namespace tessarine
