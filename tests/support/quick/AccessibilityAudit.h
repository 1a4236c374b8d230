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

    // Turns accessibility on, as a running screen reader does; Qt Quick Controls name their
    // controls only while it is on.
    Q_INVOKABLE static void activate();

    // One line for every shown element of the item's window that a screen reader would announce
    // without a name (a control, card, chart, cell, row or field), or with an icon glyph in its
    // name, and every clickable item that no control speaks for; each line gives the element's
    // role, its type and the nearest named element above it.
    Q_INVOKABLE static QStringList faults(QQuickItem* item);

    // The controls under root that a mouse user can use and a keyboard user cannot reach: visible,
    // enabled items that take clicks (buttons, combo boxes, editable fields, items with a mouse
    // area, a tap handler or mouse input of their own) of which neither the item nor an item
    // around it is in the window's Tab chain. Around counts because a list, a table or a treemap
    // takes the keyboard as one stop and moves among its rows or cells with the arrows. Each is
    // named by its objectName, else by its type and text.
    Q_INVOKABLE static QStringList unreachableControls(QQuickItem* root);

    // The name of the item's element.
    Q_INVOKABLE static QString nameOf(QQuickItem* item);
};

} // namespace tessarine
