#pragma once

#include "model/ScanSummary.h"

#include <QList>
#include <QObject>
#include <QString>

namespace tessarine {

// The orders the history list offers, in the order its sort picker lists them.
class HistoryOrder {
    Q_GADGET

public:
    enum SortOrder { DateDescending, DateAscending, SizeDescending, SizeAscending, NameAscending };
    Q_ENUM(SortOrder)
};

using HistorySortOrder = HistoryOrder::SortOrder;

// The picker's label of an order, e.g. "Newest First".
QString sortOrderLabel(HistorySortOrder order);

// The scans whose name, or else whose path, holds the search text (ignoring case, as the locale
// compares letters), in the order asked for. An empty search keeps every scan. Sorting is stable,
// so scans that tie keep their history order (newest first).
QList<ScanSummary> filteredHistory(const QList<ScanSummary>& history, const QString& searchText,
                                   HistorySortOrder order);

} // namespace tessarine
