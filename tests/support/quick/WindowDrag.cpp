#include "WindowDrag.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QQuickItem>
#include <QQuickWindow>

namespace tessarine::testing {

WindowDrag::WindowDrag(QQuickItem* over, const QList<QUrl>& urls)
    : m_over(over)
    , m_position(over->mapToScene(QPointF(over->width() / 2, over->height() / 2))) {
    m_data.setUrls(urls);
}

bool WindowDrag::enter() {
    QDragEnterEvent event(m_position.toPoint(), Qt::CopyAction, &m_data, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(m_over->window(), &event);
    return event.isAccepted();
}

Qt::DropAction WindowDrag::drop() {
    QDropEvent event(m_position, Qt::CopyAction, &m_data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_over->window(), &event);
    return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
}

void WindowDrag::leave() {
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(m_over->window(), &event);
}

} // namespace tessarine::testing
