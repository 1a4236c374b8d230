#pragma once

#include "HistoryOrder.h"
#include "ScanSelection.h"
#include "StorageTrend.h"
#include "app/ScanHistoryModel.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The history screen's list: the application's history searched, sorted and with its selection,
// and what the trend section charts. Follows the history as scans are added and deleted.
class HistoryListModel : public ResultListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        tessarine::ScanHistoryModel* history READ history WRITE setHistory NOTIFY historyChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(tessarine::HistoryOrder::SortOrder sortOrder READ sortOrder WRITE setSortOrder NOTIFY
                   sortOrderChanged)
    Q_PROPERTY(QStringList sortOrderLabels READ sortOrderLabels CONSTANT)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)
    Q_PROPERTY(bool canCompare READ canCompare NOTIFY selectionChanged)
    Q_PROPERTY(tessarine::ScanSummary comparedFirst READ comparedFirst NOTIFY selectionChanged)
    Q_PROPERTY(tessarine::ScanSummary comparedSecond READ comparedSecond NOTIFY selectionChanged)
    Q_PROPERTY(bool showsTrend READ showsTrend NOTIFY trendChanged)
    Q_PROPERTY(tessarine::TrendSeries trend READ trend NOTIFY trendChanged)

public:
    enum OwnRole { SelectedRole = ScanDateRole + 1 };
    Q_ENUM(OwnRole)

    using ResultListModel::ResultListModel;

    QHash<int, QByteArray> roleNames() const override;

    ScanHistoryModel* history() const { return m_history; }
    void setHistory(ScanHistoryModel* history);
    const QString& searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    HistorySortOrder sortOrder() const { return m_sortOrder; }
    void setSortOrder(HistorySortOrder order);
    QStringList sortOrderLabels() const;
    int selectedCount() const { return static_cast<int>(m_selection.count()); }
    bool canCompare() const;
    ScanSummary comparedFirst() const;
    ScanSummary comparedSecond() const;
    bool showsTrend() const { return m_showsTrend; }
    const TrendSeries& trend() const { return m_trend; }

    Q_INVOKABLE void toggleSelection(const tessarine::ScanSummary& result);
    Q_INVOKABLE void clearSelection();
    // The selected scans in history order, for the bulk delete.
    Q_INVOKABLE QList<tessarine::ScanSummary> selectedScans() const;

signals:
    void historyChanged();
    void searchTextChanged();
    void sortOrderChanged();
    void selectionChanged();
    void trendChanged();

protected:
    QVariant rowData(const ScanSummary& summary, int role) const override;

private:
    QList<ScanSummary> allScans() const;
    // Takes in a change of the history: rows, selection, whether any folder has a trend.
    void followHistory();
    // Takes in a change of the search or the order: rows and the trend they chart.
    void refreshRows(bool trendShownChanged = false);
    void refreshSelectedRoles();

    QPointer<ScanHistoryModel> m_history;
    QString m_searchText;
    HistorySortOrder m_sortOrder = HistoryOrder::DateDescending;
    ScanSelection m_selection;
    bool m_showsTrend = false;
    TrendSeries m_trend;
};

} // namespace tessarine
