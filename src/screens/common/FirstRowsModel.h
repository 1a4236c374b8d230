#pragma once

#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The first `limit` rows of a list model, with its roles: the newest scans of the history, the
// latest lines of the activity log. Rows entering at the top push the last one out.
class FirstRowsModel : public QSortFilterProxyModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int limit READ limit WRITE setLimit NOTIFY limitChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit FirstRowsModel(QObject* parent = nullptr);

    int limit() const { return m_limit; }
    void setLimit(int limit);
    int count() const { return rowCount(); }

    void setSourceModel(QAbstractItemModel* sourceModel) override;

signals:
    void limitChanged();
    void countChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    int m_limit = 0;
};

} // namespace tessarine
