#include "screens/dashboard/SummaryFiguresModel.h"

namespace tessarine {

SummaryFiguresModel::SummaryFiguresModel(QObject* parent)
    : FigureListModel(parent) {
    const auto update = [this] {
        setFigures(summaryFigures({m_totalSize, m_fileCount, m_folderCount, m_maxDepth}));
    };
    connect(this, &SummaryFiguresModel::totalsChanged, this, update);
    update();
}

} // namespace tessarine
