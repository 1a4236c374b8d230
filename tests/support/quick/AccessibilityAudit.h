#pragma once

#include <QObject>
#include <QStringList>

class QQuickItem;

namespace tessarine {

// Reads a window the way a screen reader does, through the accessibility interfaces that Qt
// builds for it, and the way a keyboard user does, along its Tab chain, as the Accessibility
// singleton of Tessarine.Testing.
class AccessibilityAudit : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // As a running screen reader does: Qt Quick Controls name their controls only while it is on.
    Q_INVOKABLE static void activate();

    // A line for every shown element of the item's window announced without a name (a control,
    // card, chart, cell, row or field) or with an icon glyph in it, and for every clickable item
    // that no control speaks for: its role, its type and the nearest named element above it.
    Q_INVOKABLE static QStringList faults(QQuickItem* item);

    // Visible, enabled items under root that take clicks while neither they nor an item around
    // them is in the Tab chain (a list, table or treemap is one stop and moves with the arrows),
    // by objectName, else by type and text.
    Q_INVOKABLE static QStringList unreachableControls(QQuickItem* root);
};

} // namespace tessarine
