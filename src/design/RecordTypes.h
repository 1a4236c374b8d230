#pragma once

#include "model/Records.h"
#include "model/ScanProgress.h"

#include <QObject>
#include <QtQml/qqml.h>

// The core's records as QML value types. The core stays free of QML; the names are registered
// here, where the interface begins.
namespace tessarine::qmlrecords {

struct AnalysisResultForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::AnalysisResult)
    QML_VALUE_TYPE(analysisResult)
};

struct FileInfoForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::FileInfo)
    QML_VALUE_TYPE(fileInfo)
};

struct CategoryStatsForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::CategoryStats)
    QML_VALUE_TYPE(categoryStats)
};

struct ExtensionStatsForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::ExtensionStats)
    QML_VALUE_TYPE(extensionStats)
};

struct DepthStatsForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::DepthStats)
    QML_VALUE_TYPE(depthStats)
};

struct PatternInsightForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::PatternInsight)
    QML_VALUE_TYPE(patternInsight)
};

struct FolderInfoForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::FolderInfo)
    QML_VALUE_TYPE(folderInfo)
};

struct SharedFolderTreeForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::SharedFolderTree)
    QML_VALUE_TYPE(folderTree)
};

struct ScanProgressForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::ScanProgress)
    QML_VALUE_TYPE(scanProgress)
};

struct ScanOptionsForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::ScanOptions)
    QML_VALUE_TYPE(scanOptions)
};

} // namespace tessarine::qmlrecords
