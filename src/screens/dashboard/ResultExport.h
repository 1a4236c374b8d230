#pragma once

#include "model/Records.h"

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Writes a result where the user chose in the export sheet: as JSON, the same bytes as its
// history file, or as CSV, its largest files.
class ResultExport : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Format { Json, Csv };
    Q_ENUM(Format)

    using QObject::QObject;

    // "analysis_" + the root name + the format's extension, in the home folder, where the save
    // dialog starts.
    Q_INVOKABLE QUrl proposedFile(const tessarine::AnalysisResult& result, Format format) const;
    // Writes the file, replacing any earlier one; the error's description, or empty on success.
    Q_INVOKABLE QString write(const tessarine::AnalysisResult& result, Format format,
                              const QUrl& destination) const;
};

} // namespace tessarine
