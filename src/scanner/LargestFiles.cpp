#include "scanner/LargestFiles.h"

#include <algorithm>

namespace tessarine {

bool LargestFiles::ranksBefore(const Candidate& a, const Candidate& b) {
    return a.file.size != b.file.size ? a.file.size > b.file.size : a.arrival < b.arrival;
}

void LargestFiles::add(FileInfo file) {
    if (!wouldKeep(file.size))
        return;
    const qint64 arrival = m_arrivals++;
    if (qsizetype(m_kept.size()) == limit) {
        std::pop_heap(m_kept.begin(), m_kept.end(), ranksBefore);
        m_kept.back() = {arrival, std::move(file)};
    } else {
        m_kept.push_back({arrival, std::move(file)});
    }
    std::push_heap(m_kept.begin(), m_kept.end(), ranksBefore);
}

QList<FileInfo> LargestFiles::sorted() const {
    std::vector<Candidate> ranked = m_kept;
    std::sort(ranked.begin(), ranked.end(), ranksBefore);
    QList<FileInfo> files;
    files.reserve(qsizetype(ranked.size()));
    for (Candidate& candidate : ranked)
        files.append(std::move(candidate.file));
    return files;
}

} // namespace tessarine
