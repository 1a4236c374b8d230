#pragma once

#include "model/Records.h"

#include <QList>

#include <vector>

namespace tessarine {

// Keeps the largest files of a scan. Among files of equal size the one added first ranks first,
// so the result equals a stable largest-first sort of every file, cut to `limit`. Memory stays at
// `limit` records however many files pass by, and a caller can ask wouldKeep() before building a
// record at all: most files of a large scan never need one.
class LargestFiles {
public:
    static constexpr qsizetype limit = 100;

    bool wouldKeep(qint64 size) const {
        return qsizetype(m_kept.size()) < limit || size > m_kept.front().file.size;
    }
    // Offers one file; it is dropped unless wouldKeep(file.size).
    void add(FileInfo file);
    // The kept files, largest first, equal sizes in the order they were added.
    QList<FileInfo> sorted() const;

private:
    struct Candidate {
        qint64 arrival;
        FileInfo file;
    };
    // True when a ranks before b in the final list.
    static bool ranksBefore(const Candidate& a, const Candidate& b);

    // A heap whose top is the candidate that ranks last: the one a better file displaces.
    std::vector<Candidate> m_kept;
    qint64 m_arrivals = 0;
};

} // namespace tessarine
