#include "WindowProbe.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QMutex>
#include <QQuickItem>
#include <QQuickWindow>

namespace tessarine::testing {

namespace {

QMutex warningsLock;
QStringList warnings;
QtMessageHandler previousHandler = nullptr;

void keepWarnings(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg)
        WindowProbe::recordWarning(message);
    if (previousHandler)
        previousHandler(type, context, message);
}

// The accessible name set in QML lives on the item's attached Accessible object.
QString accessibleName(const QQuickItem* item) {
    for (const QObject* child : item->children()) {
        if (qstrcmp(child->metaObject()->className(), "QQuickAccessibleAttached") == 0)
            return child->property("name").toString();
    }
    return {};
}

bool isNamed(const QQuickItem* item, const QString& name) {
    return item->objectName() == name || accessibleName(item) == name ||
           item->property("text").toString() == name;
}

// The part of the item a person can see: inside every clipping ancestor and the window, under
// no fully transparent ancestor. Empty when nothing of it shows.
QRectF shownSceneRect(const QQuickItem* item) {
    if (!item->isVisible())
        return {};
    QRectF shown = item->mapRectToScene(item->boundingRect());
    for (const QQuickItem* above = item; above; above = above->parentItem()) {
        if (above->opacity() <= 0)
            return {};
        if (above->clip() && above != item)
            shown &= above->mapRectToScene(QRectF(0, 0, above->width(), above->height()));
    }
    return shown & QRectF(QPointF(0, 0), item->window()->size());
}

void collect(const QQuickItem* item, const QString& name, QJsonArray& rects) {
    if (!item->isVisible())
        return;
    if (isNamed(item, name)) {
        const QRectF shown = shownSceneRect(item);
        if (!shown.isEmpty()) {
            const QPoint topLeft = item->window()->mapToGlobal(shown.topLeft().toPoint());
            const bool whole = shown == item->mapRectToScene(item->boundingRect());
            rects.append(QJsonArray{topLeft.x(), topLeft.y(), qRound(shown.width()),
                                    qRound(shown.height()), whole});
        }
    }
    for (const QQuickItem* child : item->childItems())
        collect(child, name, rects);
}

} // namespace

WindowProbe::WindowProbe(const QString& serverName, QObject* parent)
    : QObject(parent) {
    previousHandler = qInstallMessageHandler(keepWarnings);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = m_server.nextPendingConnection()) {
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] { answer(socket); });
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
    QLocalServer::removeServer(serverName);
    if (!m_server.listen(serverName))
        qFatal("The window probe cannot listen on %s", qPrintable(serverName));
}

void WindowProbe::recordWarning(const QString& message) {
    const QMutexLocker lock(&warningsLock);
    warnings.append(message);
}

void WindowProbe::answer(QLocalSocket* socket) {
    while (socket->canReadLine()) {
        const QString request = QString::fromUtf8(socket->readLine()).trimmed();
        socket->write(QJsonDocument(handle(request)).toJson(QJsonDocument::Compact) + '\n');
    }
    socket->flush();
}

QJsonObject WindowProbe::handle(const QString& request) const {
    if (request == QLatin1String("warnings")) {
        const QMutexLocker lock(&warningsLock);
        return {{QStringLiteral("warnings"), QJsonArray::fromStringList(warnings)}};
    }
    QJsonArray rects;
    const QString name = request.section(QLatin1Char(' '), 1, -1);
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (auto* quickWindow = qobject_cast<QQuickWindow*>(window);
            quickWindow && window->isVisible())
            collect(quickWindow->contentItem(), name, rects);
    }
    return {{QStringLiteral("rects"), rects}};
}

} // namespace tessarine::testing
