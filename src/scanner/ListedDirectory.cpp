#include "scanner/ListedDirectory.h"

#include "model/SaturatingSum.h"

#include <vector>

namespace tessarine {

QByteArray ListedDirectory::pathBelow(QByteArrayView rootPath) const {
    std::vector<const ListedDirectory*> chain;
    for (const ListedDirectory* folder = this; folder->m_parent; folder = folder->m_parent)
        chain.push_back(folder);
    QByteArray path = rootPath.toByteArray();
    for (auto it = chain.rbegin(); it != chain.rend(); ++it)
        appendPathComponent(path, (*it)->name());
    return path;
}

void ListedDirectory::setEntries(std::span<ListedEntry> entries, qint64 summedCount,
                                 qint64 summedSize) {
    m_entries = entries.data();
    m_entryCount = quint32(entries.size());
    m_summedCount = summedCount;
    m_summedSize = summedSize;
    m_state = State::listed;
}

void ListedDirectory::addSummedSize(qint64 size) {
    addSaturating(m_summedSize, size);
}

void appendPathComponent(QByteArray& path, QByteArrayView component) {
    if (!path.endsWith('/'))
        path.append('/');
    path.append(component);
}

} // namespace tessarine
