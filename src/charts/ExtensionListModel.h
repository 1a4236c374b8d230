#pragma once

#include "design/RowListModel.h"
#include "model/Records.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The largest extensions of the result bound to it: the first 15 at most, of which the first 10
// until showAll, with the count and size of those left out for the footer.
class ExtensionListModel : public RowListModel<ExtensionListModel, QList<ExtensionStats>> {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult result READ result WRITE setResult NOTIFY rowsChanged)
    Q_PROPERTY(bool showAll READ showAll WRITE setShowAll NOTIFY rowsChanged)
    Q_PROPERTY(int count READ count NOTIFY rowsChanged)
    Q_PROPERTY(int hiddenCount READ hiddenCount NOTIFY rowsChanged)
    Q_PROPERTY(qint64 hiddenSize READ hiddenSize NOTIFY rowsChanged)

public:
    enum Role {
        DisplayNameRole = Qt::UserRole + 1,
        ColorNameRole,
        TotalSizeRole,
        FileCountRole,
        FractionRole
    };
    Q_ENUM(Role)

    static constexpr int listed = 15;
    static constexpr int shownAtFirst = 10;

    using RowListModel::RowListModel;

    const AnalysisResult& result() const { return m_result; }
    void setResult(const AnalysisResult& result);
    bool showAll() const { return m_showAll; }
    void setShowAll(bool showAll);
    int count() const;
    int hiddenCount() const { return int(m_rows.size()) - count(); }
    qint64 hiddenSize() const;

signals:
    void rowsChanged();

private:
    QVariant rowData(const ExtensionStats& stats, int role) const override;
    int shownRowCount() const override { return count(); }

    AnalysisResult m_result;
    bool m_showAll = false;
};

} // namespace tessarine
