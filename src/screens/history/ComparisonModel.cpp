#include "ComparisonModel.h"

#include "ScanComparison.h"

namespace tessarine {

void ComparisonModel::setFirst(const AnalysisResult& first) {
    m_first = first;
    compare();
}

void ComparisonModel::setSecond(const AnalysisResult& second) {
    m_second = second;
    compare();
}

void ComparisonModel::compare() {
    ScanComparison comparison = compareScans(m_first, m_second);
    m_before = std::move(comparison.before);
    m_after = std::move(comparison.after);
    m_totals.setRows(std::move(comparison.totals));
    m_categories.setRows(std::move(comparison.categories));
    m_files.setRows(std::move(comparison.files));
    m_optionsNote = std::move(comparison.optionsNote);
    emit changed();
}

} // namespace tessarine
