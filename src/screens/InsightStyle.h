#pragma once

#include "model/InsightType.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Symbol and Theme colour name of each kind of insight card.
QString insightSymbol(InsightType type);
QString insightColor(InsightType type);

// The same table for QML, keyed by the insight's type name (e.g. "Large Cache"). A name that
// names no known type gets a neutral lightbulb rather than an empty tile.
class InsightStyle : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE QString symbol(const QString& typeName) const;
    Q_INVOKABLE QString color(const QString& typeName) const;
};

} // namespace tessarine
