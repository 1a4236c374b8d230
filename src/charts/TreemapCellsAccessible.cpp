#include "charts/TreemapCellsAccessible.h"

#include "charts/TreemapCells.h"

#include <QQuickWindow>

#include <mutex>

namespace tessarine {

namespace {

// Where a rectangle of the item's own coordinates lies on the screen.
QRect screenRect(const QQuickItem& item, const QRectF& local) {
    if (!item.window())
        return {};
    const QRectF scene = item.mapRectToScene(local);
    return QRect(item.window()->mapToGlobal(scene.topLeft().toPoint()), scene.size().toSize());
}

bool isShown(const QQuickItem& item) {
    return item.isVisible() && item.window() && item.window()->isVisible() &&
           !qFuzzyIsNull(item.opacity());
}

// The object behind the item's Accessible attached properties, which QML makes as a child of the
// item; its class is private to Qt Quick, so it is known by name only.
QObject* accessibleAttached(const QObject& item) {
    for (QObject* child : item.children())
        if (child->inherits("QQuickAccessibleAttached"))
            return child;
    return nullptr;
}

// One painted cell, by its index in the item's cells. Pressing it does what the pointer's click and
// double click do, so that it selects a category and opens a folder: each treemap heeds one.
class TreemapCellAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    TreemapCellAccessible(TreemapCells* cells, int index)
        : m_cells(cells)
        , m_index(index) {}

    int index() const { return m_index; }
    const TreemapCells* cells() const { return m_cells; }

    bool isValid() const override { return m_cells && m_index < m_cells->cells().count(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_cells->window(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_cells);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    QString text(QAccessible::Text type) const override {
        const TreemapCellSpeech& speech = cell().speech;
        switch (type) {
        case QAccessible::Name:
            return speech.name;
        case QAccessible::Value:
            return speech.value();
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return screenRect(*m_cells, cell().rect); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = !isShown(*m_cells) || cell().rect.isEmpty();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name != pressAction())
            return;
        emit m_cells->clicked(m_index);
        emit m_cells->doubleClicked(m_index);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const TreemapCell& cell() const { return m_cells->cells().cells().at(m_index); }

    QPointer<TreemapCells> m_cells;
    int m_index;
};

QAccessibleInterface* treemapCellsFactory(const QString&, QObject* object) {
    if (auto* cells = qobject_cast<TreemapCells*>(object))
        return new TreemapCellsAccessible(cells);
    return nullptr;
}

} // namespace

TreemapCellsAccessible::TreemapCellsAccessible(TreemapCells* cells)
    : QAccessibleObject(cells) {
    m_cellsChanged = QObject::connect(cells, &TreemapCells::cellsChanged, cells,
                                      [this] { forgetCellElements(); });
}

TreemapCellsAccessible::~TreemapCellsAccessible() {
    QObject::disconnect(m_cellsChanged);
    for (const QAccessible::Id id : std::as_const(m_cellIds))
        if (id)
            QAccessible::deleteAccessibleInterface(id);
}

void TreemapCellsAccessible::install() {
    static std::once_flag installed;
    std::call_once(installed, [] { QAccessible::installFactory(treemapCellsFactory); });
}

TreemapCells* TreemapCellsAccessible::cells() const {
    return static_cast<TreemapCells*>(object());
}

void TreemapCellsAccessible::forgetCellElements() {
    for (const QAccessible::Id id : std::as_const(m_cellIds))
        if (id)
            QAccessible::deleteAccessibleInterface(id);
    m_cellIds.clear();
    if (QAccessible::isActive()) {
        QAccessibleEvent reordered(cells(), QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&reordered);
    }
}

QWindow* TreemapCellsAccessible::window() const {
    return cells()->window();
}

QAccessibleInterface* TreemapCellsAccessible::parent() const {
    // The nearest ancestor that Qt Quick lists this item under; the window above the content item.
    for (QQuickItem* above = cells()->parentItem(); above; above = above->parentItem()) {
        if (above->window() && above == above->window()->contentItem())
            return QAccessible::queryAccessibleInterface(above->window());
        QAccessibleInterface* candidate = QAccessible::queryAccessibleInterface(above);
        if (candidate && candidate->indexOfChild(this) >= 0)
            return candidate;
    }
    return nullptr;
}

QAccessibleInterface* TreemapCellsAccessible::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    if (m_cellIds.size() <= index)
        m_cellIds.resize(index + 1);
    QAccessible::Id& id = m_cellIds[index];
    if (!id)
        id = QAccessible::registerAccessibleInterface(new TreemapCellAccessible(cells(), index));
    return QAccessible::accessibleInterface(id);
}

int TreemapCellsAccessible::childCount() const {
    return cells()->cells().count();
}

int TreemapCellsAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* cell = dynamic_cast<const TreemapCellAccessible*>(child);
    return cell && cell->cells() == cells() ? cell->index() : -1;
}

QAccessibleInterface* TreemapCellsAccessible::childAt(int x, int y) const {
    const QPointF local = cells()->mapFromGlobal(QPointF(x, y));
    return child(cells()->cellAt(local.x(), local.y()));
}

QString TreemapCellsAccessible::text(QAccessible::Text type) const {
    const QObject* attached = accessibleAttached(*cells());
    if (!attached)
        return {};
    switch (type) {
    case QAccessible::Name:
        return attached->property("name").toString();
    case QAccessible::Description:
        return attached->property("description").toString();
    default:
        return {};
    }
}

QRect TreemapCellsAccessible::rect() const {
    return screenRect(*cells(), cells()->boundingRect());
}

QAccessible::Role TreemapCellsAccessible::role() const {
    return QAccessible::List;
}

QAccessible::State TreemapCellsAccessible::state() const {
    QAccessible::State state;
    state.invisible = !isShown(*cells());
    return state;
}

} // namespace tessarine
