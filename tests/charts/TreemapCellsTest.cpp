#include "QmlWarnings.h"

#include "charts/TreemapCell.h"

#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(Tessarine_ChartsPlugin)

using namespace tessarine;

// Hands the QML tests cells the way the charts' C++ will: as one list value.
class CellFixtures : public QObject {
    Q_OBJECT

public:
    // A grid of columns x rows square cells of size points, each bordered, with one more cell
    // over the first, which then wins its hit test.
    Q_INVOKABLE tessarine::TreemapCellList grid(int columns, int rows, qreal size) const {
        QList<TreemapCell> cells;
        TreemapCell cell{{}, 4, Qt::blue, 0.75, {Qt::black, 1}, 0.9, {Qt::white, 2}, {}, {}};
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                cell.rect = QRectF(column * size, row * size, size, size);
                cells.append(cell);
            }
        }
        cells.append(
            {QRectF(2, 2, size / 2, size / 2), 2, Qt::red, 0.85, {}, 0.9, {Qt::white, 2}, {}, {}});
        return TreemapCellList(cells);
    }

    // The same cells in another colour, as a new selection gives them.
    Q_INVOKABLE tessarine::TreemapCellList restyled(const tessarine::TreemapCellList& list) const {
        QList<TreemapCell> cells = list.cells();
        for (TreemapCell& cell : cells)
            cell.fill = Qt::darkGreen;
        return TreemapCellList(cells);
    }
};

class TreemapCellsSetup : public QObject {
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral(":/"));
        testing::failOnQmlWarnings(*engine);
        qmlRegisterSingletonInstance("Tessarine.Fixtures", 1, 0, "CellFixtures", &m_fixtures);
    }

private:
    CellFixtures m_fixtures;
};

QUICK_TEST_MAIN_WITH_SETUP(TreemapCellsTest, TreemapCellsSetup)

#include "TreemapCellsTest.moc"
