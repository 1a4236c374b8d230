#pragma once

#include <QMimeData>
#include <QPointF>
#include <QUrl>

class QQuickItem;

namespace tessarine::testing {

// A drag of file URLs from outside the application at the centre of an item, delivered as the
// platform would: Quick's own Drag attached type cannot carry URLs.
class WindowDrag {
public:
    WindowDrag(QQuickItem* over, const QList<QUrl>& urls);

    // Whether some drop target took the drag.
    bool enter();
    // The action the drop ended with; Qt::IgnoreAction when it was refused.
    Qt::DropAction drop();
    void leave();

private:
    QQuickItem* m_over;
    QPointF m_position;
    QMimeData m_data;
};

} // namespace tessarine::testing
