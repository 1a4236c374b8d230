#pragma once

#include "FileTrees.h"
#include "model/Records.h"
#include "scanner/ListedEntry.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <utility>
#include <vector>

// The plainest possible readings of a folder, for the fast parallel code to be compared with.
namespace tessarine::testing {

// One entry as a plain recursive readdir walk sees it, in pre-order with readdir's order.
struct WalkedItem {
    QByteArray path;
    EntryKind kind;
    qint64 size;
    qint64 modifiedMsecs;
    qint64 depth;

    bool operator==(const WalkedItem&) const = default;
};

// A sequential opendir/readdir/lstat walk with the same hidden, package and symbolic-link rules.
// It recurses, so it only suits shallow test trees.
std::vector<WalkedItem> referenceWalk(const QByteArray& root);

// What that walk yields, folded record by record: the result a scan of an unchanging tree must
// give.
AnalysisResult referenceResult(const QString& root);

// Every folder's size and file count by its path below root ("" for root itself), summed from
// that walk item by item into each folder above the item; only those holding at least `cutoff`
// bytes, and root.
std::map<QByteArray, std::pair<qint64, qint64>> referenceFolderSizes(const QString& root,
                                                                     qint64 cutoff);

} // namespace tessarine::testing
