#include "charts/FolderTreemapModel.h"

#include "charts/TreemapCellStyle.h"
#include "design/ColorScheme.h"

namespace tessarine {

FolderTreemapModel::FolderTreemapModel(QObject* parent)
    : QObject(parent) {
    // The layout stays; only the colours are new.
    connect(&ColorScheme::instance(), &ColorScheme::darkChanged, this, [this] {
        m_cells = styledCells();
        emit cellsChanged();
    });
}

void FolderTreemapModel::setTree(const SharedFolderTree& tree) {
    m_tree = tree;
    setPath({});
}

void FolderTreemapModel::setAreaSize(const QSizeF& size) {
    if (size == m_areaSize)
        return;
    m_areaSize = size;
    relayout();
    emit areaSizeChanged();
}

QString FolderTreemapModel::rootName() const {
    return m_tree ? m_tree->name : QString();
}

QStringList FolderTreemapModel::pathNames() const {
    QStringList names;
    for (const FolderInfo* folder : m_path)
        names.append(folder->name);
    return names;
}

void FolderTreemapModel::setHoveredIndex(int index) {
    if (index == m_hoveredIndex)
        return;
    m_hoveredIndex = index;
    emit detailsChanged();
}

FolderSummary FolderTreemapModel::details() const {
    if (const FolderInfo* hovered = folderAt(m_hoveredIndex))
        return FolderSummary::of(*hovered);
    const FolderInfo* current = currentFolder();
    return current ? FolderSummary::of(*current) : FolderSummary();
}

const FolderInfo* FolderTreemapModel::folderAt(int cellIndex) const {
    if (cellIndex < 0 || static_cast<size_t>(cellIndex) >= m_treemap.cells.size())
        return nullptr;
    return m_treemap.cells[static_cast<size_t>(cellIndex)].item.folder;
}

int FolderTreemapModel::cellNamed(const QString& name) const {
    for (size_t i = 0; i < m_treemap.cells.size(); ++i) {
        if (m_treemap.cells[i].item.folder->name == name)
            return static_cast<int>(i);
    }
    return -1;
}

QRectF FolderTreemapModel::cellRect(int cellIndex) const {
    return folderAt(cellIndex) ? m_cells.cells().at(cellIndex).rect : QRectF();
}

bool FolderTreemapModel::drillDown(int cellIndex) {
    const FolderInfo* folder = folderAt(cellIndex);
    // A "Files" cell and a folder without sub-folders have nothing further to show.
    if (!folder || folder->childFolders.empty())
        return false;
    std::vector<const FolderInfo*> path = m_path;
    path.push_back(folder);
    setPath(std::move(path));
    return true;
}

void FolderTreemapModel::back() {
    if (m_path.empty())
        return;
    setPath({m_path.begin(), m_path.end() - 1});
}

void FolderTreemapModel::goToRoot() {
    if (!m_path.empty())
        setPath({});
}

void FolderTreemapModel::goTo(int pathIndex) {
    if (pathIndex < 0 || static_cast<size_t>(pathIndex) + 1 >= m_path.size())
        return;
    setPath({m_path.begin(), m_path.begin() + pathIndex + 1});
}

const FolderInfo* FolderTreemapModel::currentFolder() const {
    if (!m_path.empty())
        return m_path.back();
    return m_tree ? &*m_tree : nullptr;
}

void FolderTreemapModel::setPath(std::vector<const FolderInfo*> path) {
    m_path = std::move(path);
    relayout();
    emit pathChanged();
    emit navigated();
}

TreemapCellList FolderTreemapModel::styledCells() const {
    const FolderInfo* folder = currentFolder();
    return TreemapCellList(folderTreemapCells(m_treemap, folder ? folder->totalSize : 0));
}

void FolderTreemapModel::relayout() {
    const FolderInfo* folder = currentFolder();
    m_treemap = folder && !m_areaSize.isEmpty()
                    ? layoutNestedTreemap(*folder, QRectF(QPointF(0, 0), m_areaSize))
                    : NestedTreemap();
    m_cells = styledCells();
    // The item showing the cells hovers whatever cell lies under the pointer now and hands its
    // index back.
    emit cellsChanged();
    emit detailsChanged();
}

} // namespace tessarine
