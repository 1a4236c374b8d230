#pragma once

#include "ResultListModel.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The stored scans' summaries, newest first, as the sidebar, the landing strip and the history
// list see them. Changed only by the application state.
class ScanHistoryModel : public ResultListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The scan history belongs to AppState")

public:
    using ResultListModel::ResultListModel;

    void reset(QList<ScanSummary> results);
    void prepend(const ScanSummary& result);
    // Removes every row showing the record with this id; the others keep their order.
    void removeAll(const QUuid& id);
    // Becomes the given list (newest first), keeping the rows both hold where they are.
    void sync(const QList<ScanSummary>& latest);

signals:
    // Once after every change, however many rows it moved: a list built on this one takes it
    // in with one look at the whole history instead of one per removal or insertion.
    void scansChanged();
};

} // namespace tessarine
