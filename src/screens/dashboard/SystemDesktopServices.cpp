#include "screens/dashboard/SystemDesktopServices.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

namespace tessarine {

namespace {

// Asks the session's file manager to show the file selected; false when none answers.
bool showInFileManager(const QString& path) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString()} << QString();
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 3000);
    return reply.type() == QDBusMessage::ReplyMessage;
}

} // namespace

void SystemDesktopServices::reveal(const QString& path) {
    if (!showInFileManager(path))
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

void SystemDesktopServices::open(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void SystemDesktopServices::copyText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

} // namespace tessarine
