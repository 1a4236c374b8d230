#include "charts/TreemapCells.h"

#include <QAccessible>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace tessarine;

namespace {

TreemapCell cell(const QRectF& rect, const QString& name, qint64 size) {
    TreemapCell made;
    made.rect = rect;
    made.speech = {name, size, 1000};
    return made;
}

} // namespace

// What a screen reader finds in a treemap whose cells are painted, not items.
class TreemapAccessibilityTest : public QObject {
    Q_OBJECT

private slots:
    void everyCellIsAnElementOfItsOwn() {
        QQuickWindow window;
        window.resize(400, 300);
        TreemapCells cells(window.contentItem());
        cells.setSize(QSizeF(400, 300));
        // A nested cell lies over its parent and is the one found under the pointer.
        cells.setCells(TreemapCellList({cell(QRectF(0, 0, 300, 300), "Documents", 750),
                                        cell(QRectF(300, 0, 100, 300), "Music", 255),
                                        cell(QRectF(10, 10, 50, 50), "Taxes", 5)}));

        QAccessibleInterface* treemap = QAccessible::queryAccessibleInterface(&cells);
        QVERIFY(treemap);
        QCOMPARE(treemap->role(), QAccessible::List);
        QCOMPARE(treemap->childCount(), 3);
        QAccessibleInterface* music = treemap->child(1);
        QCOMPARE(music->role(), QAccessible::ListItem);
        QCOMPARE(music->text(QAccessible::Name), "Music");
        // The share is truncated, never rounded up.
        QCOMPARE(music->text(QAccessible::Value), "255 bytes, 25 percent");
        QCOMPARE(music->parent(), treemap);
        QCOMPARE(treemap->indexOfChild(music), 1);

        const QPoint insideTaxes = window.mapToGlobal(QPoint(20, 20));
        QCOMPARE(treemap->childAt(insideTaxes.x(), insideTaxes.y()), treemap->child(2));

        QSignalSpy clicked(&cells, &TreemapCells::clicked);
        QSignalSpy opened(&cells, &TreemapCells::doubleClicked);
        music->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(0).toInt(), 1);
        QCOMPARE(opened.count(), 1);

        // Laid out anew, the treemap speaks of its new cells only.
        const QAccessible::Id stale = QAccessible::uniqueId(treemap->child(2));
        cells.setCells(TreemapCellList({cell(QRectF(0, 0, 400, 300), "Everything", 1000)}));
        QCOMPARE(treemap->childCount(), 1);
        QVERIFY(!QAccessible::accessibleInterface(stale));
        QCOMPARE(treemap->child(0)->text(QAccessible::Name), "Everything");
    }
};

QTEST_MAIN(TreemapAccessibilityTest)
#include "TreemapAccessibilityTest.moc"
