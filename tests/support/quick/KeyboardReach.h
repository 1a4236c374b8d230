#pragma once

#include <QStringList>

class QQuickItem;

namespace tessarine::testing {

// The controls under root that a mouse user can use and a keyboard user cannot reach: visible,
// enabled items that take clicks (buttons, combo boxes, editable text, items with a mouse area,
// a tap handler or mouse input of their own) of which neither the item nor an item around it
// is in the window's Tab chain. Around counts because a list, a table or a treemap takes the
// keyboard as one stop and moves among its rows or cells with the arrows. Each is named by its
// objectName, else by its type and text.
QStringList unreachableControls(QQuickItem* root);

} // namespace tessarine::testing
