#pragma once

#include "ChangeListModel.h"
#include "model/Records.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The comparison sheet's content for the two scans it is given, in either order.
class ComparisonModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult first READ first WRITE setFirst NOTIFY changed)
    Q_PROPERTY(tessarine::AnalysisResult second READ second WRITE setSecond NOTIFY changed)
    Q_PROPERTY(tessarine::AnalysisResult before READ before NOTIFY changed)
    Q_PROPERTY(tessarine::AnalysisResult after READ after NOTIFY changed)
    Q_PROPERTY(tessarine::ChangeListModel* totals READ totals CONSTANT)
    Q_PROPERTY(tessarine::ChangeListModel* categories READ categories CONSTANT)
    Q_PROPERTY(tessarine::ChangeListModel* files READ files CONSTANT)
    // The history folder holding the scans' folder sizes (AppState.historyFolder).
    Q_PROPERTY(QString historyFolder READ historyFolder WRITE setHistoryFolder NOTIFY changed)
    // The folders that grew, appeared, shrank or went; or, when they cannot be compared, none and
    // the one line that says why.
    Q_PROPERTY(tessarine::ChangeListModel* folders READ folders CONSTANT)
    Q_PROPERTY(QString folderNote READ folderNote NOTIFY changed)
    Q_PROPERTY(QString optionsNote READ optionsNote NOTIFY changed)

public:
    using QObject::QObject;

    const AnalysisResult& first() const { return m_first; }
    void setFirst(const AnalysisResult& first);
    const AnalysisResult& second() const { return m_second; }
    void setSecond(const AnalysisResult& second);
    const AnalysisResult& before() const { return m_before; }
    const AnalysisResult& after() const { return m_after; }
    ChangeListModel* totals() { return &m_totals; }
    ChangeListModel* categories() { return &m_categories; }
    ChangeListModel* files() { return &m_files; }
    const QString& historyFolder() const { return m_historyFolder; }
    void setHistoryFolder(const QString& folder);
    ChangeListModel* folders() { return &m_folders; }
    const QString& folderNote() const { return m_folderNote; }
    const QString& optionsNote() const { return m_optionsNote; }

signals:
    void changed();

private:
    void compare();
    void compareFolders();

    AnalysisResult m_first;
    AnalysisResult m_second;
    AnalysisResult m_before;
    AnalysisResult m_after;
    ChangeListModel m_totals;
    ChangeListModel m_categories;
    ChangeListModel m_files;
    QString m_historyFolder;
    ChangeListModel m_folders;
    QString m_folderNote;
    QString m_optionsNote;
};

} // namespace tessarine
