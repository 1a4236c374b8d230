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
    const QString& optionsNote() const { return m_optionsNote; }

signals:
    void changed();

private:
    void compare();

    AnalysisResult m_first;
    AnalysisResult m_second;
    AnalysisResult m_before;
    AnalysisResult m_after;
    ChangeListModel m_totals;
    ChangeListModel m_categories;
    ChangeListModel m_files;
    QString m_optionsNote;
};

} // namespace tessarine
