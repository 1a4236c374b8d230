#include "AccessibilityAudit.h"

#include <QAccessible>
#include <QMetaEnum>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>

#include <algorithm>

namespace tessarine {

namespace {

// The roles of something a click acts on.
bool isControl(QAccessible::Role role) {
    using enum QAccessible::Role;
    static const QSet<QAccessible::Role> controls{
        Button,  CheckBox, RadioButton, ComboBox, EditableText, SpinBox, Slider,
        PageTab, MenuItem, Link,        ListItem, Row,          Cell,    ColumnHeader};
    return controls.contains(role);
}

// The roles a screen reader announces by their name: controls, and what holds or shows
// information. Plain items, panes, separators and scroll bars are left out.
bool needsName(QAccessible::Role role) {
    using enum QAccessible::Role;
    static const QSet<QAccessible::Role> informing{ProgressBar, List,      Table,  Chart,
                                                   Graphic,     Grouping,  Dialog, AlertMessage,
                                                   Heading,     StaticText};
    return informing.contains(role) || isControl(role);
}

// An icon font's glyphs lie in the private use area: a reader spells them as nonsense.
bool hasGlyph(const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c.category() == QChar::Other_PrivateUse; });
}

QString describe(QAccessibleInterface* element, const QString& context) {
    const char* role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(element->role());
    const QString type = element->object()
                             ? QString::fromLatin1(element->object()->metaObject()->className())
                             : QStringLiteral("painted element");
    return QStringLiteral("%1 %2 \"%3\" in \"%4\"")
        .arg(QString::fromLatin1(role ? role : "?"), type, element->text(QAccessible::Name),
             context);
}

// An item as a fault names it: by its objectName, else by its type and text.
QString itemName(const QQuickItem& item) {
    const QString text = item.property("text").toString();
    if (!item.objectName().isEmpty())
        return item.objectName();
    return QString::fromLatin1(item.metaObject()->className()) +
           (text.isEmpty() ? QString() : QStringLiteral(" \"%1\"").arg(text));
}

struct Audit {
    QSet<const QObject*> elements;
    QStringList faults;
};

void audit(QAccessibleInterface* element, const QString& context, Audit& found) {
    if (!element || element->state().invisible)
        return;
    found.elements.insert(element->object());
    const QString name = element->text(QAccessible::Name);
    if (hasGlyph(name) || (name.trimmed().isEmpty() && needsName(element->role())))
        found.faults.append(describe(element, context));
    const QString inner = name.isEmpty() ? context : name;
    for (int i = 0; i < element->childCount(); ++i)
        audit(element->child(i), inner, found);
}

// Only handlers the application declared: Qt's own views add some for their selection.
bool hasTapHandler(const QQuickItem& item) {
    const QObjectList& children = item.children();
    return std::any_of(children.begin(), children.end(), [](QObject* child) {
        return child->inherits("QQuickTapHandler") && qmlContext(child) &&
               child->property("enabled").toBool();
    });
}

// Whether a click on the item does something: a mouse area taking buttons, or a tap handler.
bool isClickable(const QQuickItem& item) {
    if (item.inherits("QQuickMouseArea"))
        return item.isEnabled() && item.property("acceptedButtons").toInt() != Qt::NoButton;
    return hasTapHandler(item);
}

// In Qt 6.4 a control is no element of its own until its Accessible properties are set.
bool isControlItem(const QQuickItem& item) {
    return item.inherits("QQuickAbstractButton") || item.inherits("QQuickComboBox") ||
           item.inherits("QQuickSlider") || item.inherits("QQuickSpinBox") ||
           item.inherits("QQuickTextInput") || item.inherits("QQuickTextEdit");
}

// Every control and field must be an element; a clickable item speaks through the nearest element
// above it with a role of its own, which must be a control.
void auditReach(QQuickItem* item, Audit& found) {
    if (!item->isVisible())
        return;
    if (isControlItem(*item)) {
        if (!found.elements.contains(item))
            found.faults.append(itemName(*item) + QStringLiteral(" is no element"));
        // What lies inside a control (the face of a combo box) is the control's own.
        return;
    }
    if (isClickable(*item)) {
        QQuickItem* speaker = item->inherits("QQuickMouseArea") ? item->parentItem() : item;
        QAccessibleInterface* element = nullptr;
        for (; speaker; speaker = speaker->parentItem()) {
            element = QAccessible::queryAccessibleInterface(speaker);
            if (found.elements.contains(speaker) && element->role() != QAccessible::Client)
                break;
        }
        if (!speaker || !isControl(element->role()))
            found.faults.append(
                QStringLiteral("clickable %1 in %2 speaks as %3")
                    .arg(itemName(*item), itemName(*item->parentItem()),
                         speaker ? describe(element, {}) : QStringLiteral("nothing")));
    }
    for (QQuickItem* child : item->childItems())
        auditReach(child, found);
}

// The window's Tab chain, walked from its content and from root: an open pop-up fences its own
// chain off, so the walk into a sheet starts inside it.
QSet<const QQuickItem*> tabChainAround(QQuickItem* root) {
    QSet<const QQuickItem*> chain;
    for (QQuickItem* start : {root->window()->contentItem(), root}) {
        QQuickItem* item = start->nextItemInFocusChain(true);
        while (item && !chain.contains(item)) {
            chain.insert(item);
            item = item->nextItemInFocusChain(true);
        }
    }
    return chain;
}

// Panes, pop-ups, flickables and texts take the mouse only to keep it from what lies below, to
// scroll or for links (the application shows none); a split view's handle resizes its panes.
bool takesClicks(const QQuickItem& item) {
    if ((isControlItem(item) && !item.property("readOnly").toBool()) || hasTapHandler(item))
        return true;
    const bool scaffolding = item.inherits("QQuickControl") || item.inherits("QQuickFlickable") ||
                             item.inherits("QQuickOverlay") || item.inherits("QQuickText") ||
                             (item.parentItem() && item.parentItem()->inherits("QQuickSplitView"));
    return !scaffolding && item.acceptedMouseButtons() != Qt::NoButton;
}

bool reachable(const QQuickItem* item, const QSet<const QQuickItem*>& chain) {
    for (; item; item = item->parentItem())
        if (chain.contains(item))
            return true;
    return false;
}

void collectUnreachable(const QQuickItem& item, const QSet<const QQuickItem*>& chain,
                        QStringList& found) {
    if (!item.isVisible() || !item.isEnabled())
        return;
    if (takesClicks(item) && !reachable(&item, chain))
        found.append(itemName(item));
    for (const QQuickItem* child : item.childItems())
        collectUnreachable(*child, chain, found);
}

} // namespace

QStringList AccessibilityAudit::unreachableControls(QQuickItem* root) {
    QStringList found;
    if (root && root->window())
        collectUnreachable(*root, tabChainAround(root), found);
    return found;
}

void AccessibilityAudit::activate() {
    QAccessible::setActive(true);
}

QStringList AccessibilityAudit::faults(QQuickItem* item) {
    Audit found;
    if (!item || !item->window())
        return {};
    audit(QAccessible::queryAccessibleInterface(item->window()), QString(), found);
    auditReach(item->window()->contentItem(), found);
    return found.faults;
}

} // namespace tessarine
