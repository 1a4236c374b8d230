#include "QuickTestSetup.h"

#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(Tessarine_DesignPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_AppPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ChartsPlugin)

QUICK_TEST_MAIN_WITH_SETUP(FolderAnalysisViewTest, tessarine::QuickTestSetup)
