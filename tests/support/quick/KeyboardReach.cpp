#include "KeyboardReach.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>

namespace tessarine::testing {

namespace {

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

bool hasEnabledTapHandler(const QQuickItem* item) {
    for (const QObject* child : item->children()) {
        if (child->inherits("QQuickTapHandler") && child->property("enabled").toBool())
            return true;
    }
    return false;
}

bool isEditableText(const QQuickItem* item) {
    return (item->inherits("QQuickTextInput") || item->inherits("QQuickTextEdit")) &&
           !item->property("readOnly").toBool();
}

// Controls (panes, pop-ups), flickables and texts take the mouse to keep it from what lies below,
// to scroll or for links (the application shows none); only buttons and combo boxes among them
// are something to press.
bool takesClicks(const QQuickItem* item) {
    if (item->inherits("QQuickAbstractButton") || item->inherits("QQuickComboBox") ||
        isEditableText(item) || hasEnabledTapHandler(item))
        return true;
    const bool scaffolding = item->inherits("QQuickControl") || item->inherits("QQuickFlickable") ||
                             item->inherits("QQuickOverlay") || item->inherits("QQuickText");
    return !scaffolding && item->acceptedMouseButtons() != Qt::NoButton;
}

bool reachable(const QQuickItem* item, const QSet<const QQuickItem*>& chain) {
    for (; item; item = item->parentItem()) {
        if (chain.contains(item))
            return true;
    }
    return false;
}

QString nameOf(const QQuickItem* item) {
    if (!item->objectName().isEmpty())
        return item->objectName();
    const QString text = item->property("text").toString();
    return QString::fromLatin1(item->metaObject()->className()) +
           (text.isEmpty() ? QString() : QStringLiteral(" \"%1\"").arg(text));
}

void collect(const QQuickItem* item, const QSet<const QQuickItem*>& chain, QStringList& found) {
    if (!item->isVisible() || !item->isEnabled())
        return;
    if (takesClicks(item) && !reachable(item, chain))
        found.append(nameOf(item));
    for (const QQuickItem* child : item->childItems())
        collect(child, chain, found);
}

} // namespace

QStringList unreachableControls(QQuickItem* root) {
    QStringList found;
    if (root && root->window())
        collect(root, tabChainAround(root), found);
    return found;
}

} // namespace tessarine::testing
