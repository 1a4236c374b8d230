#pragma once

#include <QStandardPaths>
#include <QString>

namespace tessarine {

// The folder in which the history folder "Tessarine" lives: the user's data directory, or, when
// the platform names none, the temporary directory, with a warning line on standard output (the
// history then lasts only as long as the system keeps its temporary files).
QString historyBaseDirectory(const QString& dataDirectory = QStandardPaths::writableLocation(
                                 QStandardPaths::GenericDataLocation));

} // namespace tessarine
