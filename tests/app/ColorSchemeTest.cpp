#include "DesktopPalette.h"
#include "SampleResults.h"

#include "app/design/ColorScheme.h"
#include "charts/CategoryTreemapModel.h"
#include "charts/FolderTreemapModel.h"
#include "model/FileCategory.h"
#include "model/FolderColor.h"

#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Tessarine_AppPlugin)

using namespace tessarine;

// The palette's two appearances, and the switch between them while the application runs.
class ColorSchemeTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { m_lightPalette = QGuiApplication::palette(); }
    void cleanup() { QGuiApplication::setPalette(m_lightPalette); }

    // A name missing from the palette would show in the secondary colour instead of failing.
    void namesThatDataCarriesAreInThePalette() {
        const QStringList names = paletteColorNames();
        for (FileCategory category : allFileCategories())
            QVERIFY2(names.contains(colorName(category)), qPrintable(colorName(category)));
        for (FolderColor color : allFolderColors())
            QVERIFY2(names.contains(rawValue(color)), qPrintable(rawValue(color)));
    }

    // Every colour of Theme is the palette's colour of its name in the current appearance, and a
    // binding to one follows the desktop's switch without anything being loaded again.
    void themeFollowsTheDesktopLive() {
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral(":/"));
        QQmlComponent component(&engine);
        component.setData(
            "import QtQuick\nimport Tessarine.App\n"
            "Rectangle { color: Theme.windowBackground; property QtObject theme: Theme }",
            QUrl());
        std::unique_ptr<QObject> rectangle(component.create());
        QVERIFY2(rectangle, qPrintable(component.errorString()));
        const QObject* theme = rectangle->property("theme").value<QObject*>();
        QVERIFY(!ColorScheme::instance().dark());

        for (const Appearance appearance : {Appearance::dark, Appearance::light}) {
            QGuiApplication::setPalette(
                appearance == Appearance::dark ? testing::darkDesktopPalette() : m_lightPalette);
            QTRY_COMPARE(rectangle->property("color").value<QColor>(),
                         paletteColor(u"windowBackground", appearance));
            const QMetaObject* type = theme->metaObject();
            for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
                const QMetaProperty property = type->property(i);
                if (property.metaType() != QMetaType::fromType<QColor>())
                    continue;
                const QString name = QString::fromLatin1(property.name());
                QVERIFY2(paletteColorNames().contains(name),
                         qPrintable(name + QStringLiteral(" is not a palette colour")));
                QCOMPARE(property.read(theme).value<QColor>(), paletteColor(name, appearance));
            }
        }
    }

    // The treemaps paint colours that C++ picked: a switch must hand them cells in the dark
    // variants of the colours they had.
    void treemapsRepaintInTheNewColours() {
        const AnalysisResult result = testing::sampleResult();
        CategoryTreemapModel categories;
        categories.setResult(result);
        categories.setAreaWidth(400);
        categories.setAreaHeight(300);
        FolderTreemapModel folders;
        folders.setTree(result.folderTree);
        folders.setAreaSize(QSizeF(400, 300));
        const auto firstFill = [](const TreemapCellList& cells) {
            return cells.cells().first().fill;
        };
        const auto darkVariant = [](const QColor& light) {
            for (const QString& name : paletteColorNames())
                if (paletteColor(name, Appearance::light) == light)
                    return paletteColor(name, Appearance::dark);
            return QColor();
        };
        const QColor categoryFill = firstFill(categories.cells());
        const QColor folderFill = firstFill(folders.cells());
        QSignalSpy categoryCells(&categories, &CategoryTreemapModel::cellsChanged);
        QSignalSpy folderCells(&folders, &FolderTreemapModel::cellsChanged);

        QGuiApplication::setPalette(testing::darkDesktopPalette());
        QCOMPARE(categoryCells.count(), 1);
        QCOMPARE(folderCells.count(), 1);
        QCOMPARE(firstFill(categories.cells()), darkVariant(categoryFill));
        QCOMPARE(firstFill(folders.cells()), darkVariant(folderFill));
    }

private:
    QPalette m_lightPalette;
};

QTEST_MAIN(ColorSchemeTest)
#include "ColorSchemeTest.moc"
