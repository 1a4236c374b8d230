#pragma once

#include "tree/FolderTreeProgress.h"

#include <QObject>
#include <QtQml/qqml.h>

// The folder tree build's progress as a QML value type. Registered beside the controller that
// reports it, since the record belongs to the tree service, which the design layer does not know.
namespace tessarine::qmlrecords {

struct FolderTreeProgressForeign {
    Q_GADGET
    QML_FOREIGN(tessarine::FolderTreeProgress)
    QML_VALUE_TYPE(folderTreeProgress)
};

} // namespace tessarine::qmlrecords
