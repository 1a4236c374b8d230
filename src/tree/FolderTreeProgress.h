#pragma once

#include "model/RawValue.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringView>

#include <optional>

namespace tessarine {

// One progress record of a folder tree build, published on the user-interface thread.
struct FolderTreeProgress {
    Q_GADGET
    Q_PROPERTY(tessarine::FolderTreeProgress::Phase phase MEMBER phase)
    Q_PROPERTY(qint64 totalItems MEMBER totalItems)
    Q_PROPERTY(qint64 processedItems MEMBER processedItems)
    Q_PROPERTY(QString currentFolder MEMBER currentFolder)
    Q_PROPERTY(QDateTime startTime MEMBER startTime)
    Q_PROPERTY(QString unansweredFolder MEMBER unansweredFolder)
    Q_PROPERTY(QString statusText READ statusText)

public:
    enum class Phase : quint8 { enumerating, building, complete, cancelled };
    Q_ENUM(Phase)

    Phase phase = Phase::enumerating;
    qint64 totalItems = 0;
    qint64 processedItems = 0;
    QString currentFolder;
    QDateTime startTime;
    // A folder that has kept the enumeration waiting for seconds (a hung network mount); empty
    // while every folder answers.
    QString unansweredFolder;

    // "1,234 items found", "300 / 1,200 folders", "1,200 folders processed", "Cancelled".
    QString statusText() const;
    // Seconds left, extrapolated from the share done; none early on or while the total is unknown.
    std::optional<double>
    estimatedTimeRemaining(const QDateTime& now = QDateTime::currentDateTimeUtc()) const;

    bool operator==(const FolderTreeProgress&) const = default;
};

// "Scanning folders...", "Building tree...", "Complete", "Cancelled".
QString rawValue(FolderTreeProgress::Phase phase);

} // namespace tessarine
