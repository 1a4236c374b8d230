#include "DesktopPalette.h"
#include "SampleResults.h"
#include "SessionBus.h"

#include "charts/CategoryTreemapModel.h"
#include "charts/FolderTreemapModel.h"
#include "design/ColorScheme.h"
#include "model/FileCategory.h"
#include "model/FolderColor.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Tessarine_DesignPlugin)

using namespace tessarine;

namespace {

// The desktop's settings portal, answering Read as older portals do (the value wrapped in a
// second variant) and announcing switches with SettingChanged.
class FakeSettingsPortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint colorScheme = 0;

    void switchTo(uint scheme) {
        colorScheme = scheme;
        emit SettingChanged(QStringLiteral("org.freedesktop.appearance"),
                            QStringLiteral("color-scheme"), QDBusVariant(scheme));
    }

public slots:
    QDBusVariant Read(const QString&, const QString&) const {
        return QDBusVariant(QVariant::fromValue(QDBusVariant(colorScheme)));
    }

signals:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace

// The palette's two appearances, and the switch between them while the application runs: from
// the desktop's settings portal (a fake one on a session bus of the test's own) where it answers,
// else from the platform palette.
class ColorSchemeTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        m_lightPalette = QGuiApplication::palette();
        if (!m_bus.isRunning())
            return;
        // The application's session bus from its first use on, which is still to come.
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address());
        QDBusConnection portal = QDBusConnection::connectToBus(QString::fromLatin1(m_bus.address()),
                                                               QStringLiteral("portal"));
        QVERIFY(portal.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                                      QDBusConnection::ExportAllSlots |
                                          QDBusConnection::ExportAllSignals));
        QVERIFY(portal.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    void cleanupTestCase() { QDBusConnection::disconnectFromBus(QStringLiteral("portal")); }

    void cleanup() { QGuiApplication::setPalette(m_lightPalette); }

    // First, so that the scheme's first question finds the portal's preference. It ends with
    // "no preference", which leaves the palette to decide for the cases below.
    void portalPreferenceWinsAndSwitchesLive() {
        if (!m_bus.isRunning())
            QSKIP("needs dbus-daemon");
        m_portal.colorScheme = 1;
        const ColorScheme& scheme = ColorScheme::instance();
        QTRY_VERIFY(scheme.dark());

        m_portal.switchTo(2);
        QTRY_VERIFY(!scheme.dark());
        // A light preference holds against a dark palette.
        QGuiApplication::setPalette(testing::darkDesktopPalette());
        QVERIFY(!scheme.dark());

        m_portal.switchTo(0);
        QTRY_VERIFY(scheme.dark());
        QGuiApplication::setPalette(m_lightPalette);
        QVERIFY(!scheme.dark());
    }

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
            "import QtQuick\nimport Tessarine.Design\n"
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
    testing::SessionBus m_bus;
    FakeSettingsPortal m_portal;
};

QTEST_MAIN(ColorSchemeTest)
#include "ColorSchemeTest.moc"
