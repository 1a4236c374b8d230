#include "ComparisonModel.h"

#include "FolderChangeRows.h"
#include "ScanComparison.h"
#include "storage/FolderSizesFile.h"

namespace tessarine {

void ComparisonModel::setFirst(const AnalysisResult& first) {
    m_first = first;
    compare();
}

void ComparisonModel::setSecond(const AnalysisResult& second) {
    m_second = second;
    compare();
}

void ComparisonModel::setHistoryFolder(const QString& folder) {
    m_historyFolder = folder;
    compare();
}

void ComparisonModel::compare() {
    ScanComparison comparison = compareScans(m_first, m_second);
    m_before = std::move(comparison.before);
    m_after = std::move(comparison.after);
    m_totals.setRows(std::move(comparison.totals));
    m_categories.setRows(std::move(comparison.categories));
    m_files.setRows(std::move(comparison.files));
    compareFolders();
    m_optionsNote = std::move(comparison.optionsNote);
    emit changed();
}

void ComparisonModel::compareFolders() {
    const auto sizesOf = [this](const AnalysisResult& scan) -> std::optional<FolderSizes> {
        if (m_historyFolder.isEmpty())
            return std::nullopt;
        return loadFolderSizes(m_historyFolder, scan.id);
    };
    const FolderComparison folders = tessarine::compareFolders(m_before.rootPath, sizesOf(m_before),
                                                               m_after.rootPath, sizesOf(m_after));
    m_folders.setRows(folderChangeRows(folders));
    m_folderNote = folderComparisonNote(folders);
}

} // namespace tessarine
