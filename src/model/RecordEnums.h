#pragma once

#include <QObject>

// The enumerations the records carry, declared together because a namespace has one meta-object:
// with it, the views read a record's category, insight type, folder colour or scan phase as the
// enumeration it is instead of parsing its display text back.
namespace tessarine {
Q_NAMESPACE

// The category a file falls into, decided by its extension alone. The order is the display order.
enum class FileCategory : quint8 {
    images,
    videos,
    audio,
    documents,
    code,
    archives,
    applications,
    system,
    data,
    fonts,
    design,
    other
};
Q_ENUM_NS(FileCategory)

// Kinds of pattern that a scan can point out.
enum class InsightType : quint8 {
    nodeModules,
    duplicateNames,
    oldFiles,
    largeCache,
    emptyFolders,
    hiddenFiles
};
Q_ENUM_NS(InsightType)

// The palette that folders of the folder tree cycle through, in order.
enum class FolderColor : quint8 {
    blue,
    green,
    teal,
    orange,
    pink,
    purple,
    red,
    yellow,
    brown,
    indigo,
    mint,
    cyan
};
Q_ENUM_NS(FolderColor)

// What a running scan is doing. The order matters: the scanning screen compares positions.
enum class ScanPhase : quint8 {
    initializing,
    scanning,
    analyzing,
    categorizing,
    finalizing,
    complete,
    cancelled,
    error
};
Q_ENUM_NS(ScanPhase)

} // namespace tessarine
