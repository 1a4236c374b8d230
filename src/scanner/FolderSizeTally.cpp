#include "scanner/FolderSizeTally.h"

#include <algorithm>
#include <functional>

namespace tessarine {

FolderSizeTally::FolderSizeTally()
    : m_rows{{QByteArrayView(), -1, 0, 0}}
    , m_open{0} {}

void FolderSizeTally::addFolder(qint64 depth, QByteArrayView name) {
    closeDeeperThan(depth);
    m_rows.push_back({name, m_open.back(), 0, 0});
    m_open.push_back(qint32(m_rows.size() - 1));
}

void FolderSizeTally::closeInnermost() {
    const Row& closed = m_rows[std::size_t(m_open.back())];
    m_open.pop_back();
    Row& parent = m_rows[std::size_t(m_open.back())];
    addSaturating(parent.size, closed.size);
    addSaturating(parent.fileCount, closed.fileCount);
}

// One byte more than the largest folder after the first keptAtMost, largest first: a cut-off
// that no more than keptAtMost folders reach, however many are of one size.
qint64 FolderSizeTally::sizeAfterTheLargest() const {
    if (m_rows.size() <= keptAtMost)
        return 1;
    std::vector<qint64> sizes(m_rows.size());
    std::transform(m_rows.begin(), m_rows.end(), sizes.begin(),
                   [](const Row& row) { return row.size; });
    const auto nth = sizes.begin() + keptAtMost;
    std::nth_element(sizes.begin(), nth, sizes.end(), std::greater<>());
    return saturatingAdd(*nth, 1);
}

FolderSizes FolderSizeTally::finish() {
    closeDeeperThan(1);
    FolderSizes sizes;
    if (m_rows.size() > keptWhole)
        sizes.cutoff = std::max(m_rows.front().size / cutoffDivisor, sizeAfterTheLargest());
    // A folder is never smaller than one inside it, so every kept folder's parent is kept too.
    std::vector<qint32> keptAs(m_rows.size(), -1);
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const Row& row = m_rows[i];
        if (i == 0 || row.size >= sizes.cutoff)
            keptAs[i] = sizes.add(row.parent < 0 ? -1 : keptAs[std::size_t(row.parent)], row.name,
                                  row.size, row.fileCount);
    }
    return sizes;
}

} // namespace tessarine
