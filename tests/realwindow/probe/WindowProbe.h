#pragma once

#include <QJsonObject>
#include <QLocalServer>
#include <QObject>
#include <QStringList>

namespace tessarine::testing {

// Runs inside the application under test and tells a driver in another process where things are
// on screen, the way a person finds them by looking: the items whose name (object name,
// accessible name or text) is asked for, with the part of each that is not clipped away, in
// screen coordinates. It also keeps every warning the process prints, so a binding that breaks
// while the driver clicks around fails the run.
//
// One request per line, one JSON answer per line:
//   find <name>   {"rects": [[x, y, width, height, whole], ...]}: the shown items in tree
//                 order, whole when nothing of the item is cut off
//   warnings      {"warnings": ["...", ...]}
class WindowProbe : public QObject {
    Q_OBJECT

public:
    explicit WindowProbe(const QString& serverName, QObject* parent = nullptr);

    static void recordWarning(const QString& message);

private:
    void answer(QLocalSocket* socket);
    QJsonObject handle(const QString& request) const;

    QLocalServer m_server;
};

} // namespace tessarine::testing
