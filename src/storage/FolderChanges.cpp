#include "storage/FolderChanges.h"

#include "model/Format.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <cstdlib>

namespace tessarine {

namespace {

// Each row's sub-folders, in table order.
std::vector<std::vector<qint32>> childrenOf(const FolderSizes& sizes) {
    std::vector<std::vector<qint32>> children(sizes.rows.size());
    for (std::size_t row = 1; row < sizes.rows.size(); ++row)
        children[std::size_t(sizes.rows[row].parent)].push_back(qint32(row));
    return children;
}

// A folder as the two scans know it: its row in each (-1 where it has none worth trusting).
struct Pair {
    qint32 before;
    qint32 after;
    qsizetype parent; // index among the compared folders; -1 for the scanned folder
    QByteArray path;
};

class Comparer {
public:
    Comparer(const FolderSizes& before, const FolderSizes& after)
        : m_before(before)
        , m_after(after)
        , m_cutoff(std::max(before.cutoff, after.cutoff))
        , m_beforeChildren(childrenOf(before))
        , m_afterChildren(childrenOf(after)) {}

    qint64 cutoff() const { return m_cutoff; }

    std::vector<FolderChange> compare(const QString& rootPath) {
        m_pairs.push_back({0, 0, -1, QFile::encodeName(rootPath)});
        // In both scans' order, parents before their folders; a folder in only one scan is not
        // entered, since all of it came or went.
        for (qsizetype index = 0; index < qsizetype(m_pairs.size()); ++index) {
            if (m_pairs[std::size_t(index)].before >= 0 && m_pairs[std::size_t(index)].after >= 0)
                pairChildren(index);
        }
        return listedChanges();
    }

private:
    std::optional<qint64> sizeOf(const FolderSizes& sizes, qint32 row) const {
        if (row < 0)
            return std::nullopt;
        const qint64 size = sizes.rows[std::size_t(row)].size;
        return row == 0 || size >= m_cutoff ? std::optional(size) : std::nullopt;
    }

    void pairChildren(qsizetype parentIndex) {
        const Pair parent = m_pairs[std::size_t(parentIndex)];
        QHash<QByteArray, qint32> afterByName;
        for (const qint32 row : m_afterChildren[std::size_t(parent.after)])
            afterByName.insert(m_after.rows[std::size_t(row)].name, row);
        for (const qint32 row : m_beforeChildren[std::size_t(parent.before)]) {
            const auto match = afterByName.constFind(m_before.rows[std::size_t(row)].name);
            const qint32 after = match == afterByName.cend() ? -1 : *match;
            if (after >= 0)
                afterByName.remove(m_before.rows[std::size_t(row)].name);
            addPair(parent, parentIndex, row, after);
        }
        for (const qint32 row : m_afterChildren[std::size_t(parent.after)]) {
            if (afterByName.contains(m_after.rows[std::size_t(row)].name))
                addPair(parent, parentIndex, -1, row);
        }
    }

    void addPair(const Pair& parent, qsizetype parentIndex, qint32 before, qint32 after) {
        const qint32 known[] = {sizeOf(m_before, before) ? before : -1,
                                sizeOf(m_after, after) ? after : -1};
        if (known[0] < 0 && known[1] < 0)
            return;
        const FolderSizeRow& row = known[0] >= 0 ? m_before.rows[std::size_t(known[0])]
                                                 : m_after.rows[std::size_t(known[1])];
        QByteArray path = parent.path;
        if (!path.endsWith('/'))
            path.append('/');
        path.append(row.name);
        m_pairs.push_back({known[0], known[1], parentIndex, std::move(path)});
    }

    std::vector<FolderChange> listedChanges() const {
        const std::size_t count = m_pairs.size();
        std::vector<qint64> change(count), ofChildren(count);
        std::vector<int> changedChildren(count);
        for (std::size_t i = 0; i < count; ++i) {
            change[i] = sizeOf(m_after, m_pairs[i].after).value_or(0) -
                        sizeOf(m_before, m_pairs[i].before).value_or(0);
        }
        // Children come after their parents, so going backwards finishes every folder's children
        // before the folder itself.
        for (std::size_t i = count; i-- > 1;) {
            const auto parent = std::size_t(m_pairs[i].parent);
            ofChildren[parent] += change[i];
            changedChildren[parent] += change[i] != 0 ? 1 : 0;
        }
        std::vector<FolderChange> changes;
        for (std::size_t i = 1; i < count; ++i) {
            const Pair& pair = m_pairs[i];
            const bool cameOrWent = pair.before < 0 || pair.after < 0;
            const bool notOneChildsAlone = change[i] != ofChildren[i] || changedChildren[i] >= 2;
            if (change[i] != 0 && (cameOrWent || notOneChildsAlone))
                changes.push_back({QFile::decodeName(pair.path), sizeOf(m_before, pair.before),
                                   sizeOf(m_after, pair.after), change[i]});
        }
        std::stable_sort(changes.begin(), changes.end(), [](const auto& a, const auto& b) {
            return std::abs(a.change) > std::abs(b.change);
        });
        return changes;
    }

    const FolderSizes& m_before;
    const FolderSizes& m_after;
    const qint64 m_cutoff;
    const std::vector<std::vector<qint32>> m_beforeChildren;
    const std::vector<std::vector<qint32>> m_afterChildren;
    std::vector<Pair> m_pairs;
};

} // namespace

FolderComparison compareFolders(const QString& rootBefore, const std::optional<FolderSizes>& before,
                                const QString& rootAfter, const std::optional<FolderSizes>& after) {
    FolderComparison comparison;
    if (rootBefore != rootAfter) {
        comparison.outcome = FolderComparison::Outcome::differentFolders;
        return comparison;
    }
    if (!before || !after || before->rows.empty() || after->rows.empty())
        return comparison;
    Comparer comparer(*before, *after);
    comparison.outcome = FolderComparison::Outcome::compared;
    comparison.cutoff = comparer.cutoff();
    comparison.changes = comparer.compare(rootAfter);
    return comparison;
}

QString unknownFolderSizeText(qint64 cutoff) {
    return cutoff > 0 ? QStringLiteral("under ") + format::byteCount(cutoff) : format::missing();
}

QString folderComparisonNote(const FolderComparison& comparison) {
    switch (comparison.outcome) {
    case FolderComparison::Outcome::differentFolders:
        return QStringLiteral("These scans are of different folders, so their folders are not "
                              "compared.");
    case FolderComparison::Outcome::noFolderSizes:
        return QStringLiteral("No folder sizes were saved with one or both of these scans.");
    case FolderComparison::Outcome::compared:
        return comparison.changes.empty() ? QStringLiteral("No folder changed in size.")
                                          : QString();
    }
    return QString();
}

} // namespace tessarine
