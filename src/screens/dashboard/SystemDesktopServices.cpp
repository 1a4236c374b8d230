#include "screens/dashboard/SystemDesktopServices.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMimeData>
#include <QStringDecoder>

namespace tessarine {

namespace {

// Asks the session's file manager to show the file selected; false when none answers.
bool showInFileManager(const QUrl& file) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QString::fromLatin1(file.toEncoded())} << QString();
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 3000);
    return reply.type() == QDBusMessage::ReplyMessage;
}

} // namespace

void SystemDesktopServices::reveal(const QUrl& file) {
    if (!showInFileManager(file))
        QDesktopServices::openUrl(file.adjusted(QUrl::RemoveFilename));
}

void SystemDesktopServices::open(const QUrl& file) {
    QDesktopServices::openUrl(file);
}

// Text that is UTF-8 goes as text any program pastes; a path that is not only as plain bytes,
// which a terminal pastes as the name it is.
void SystemDesktopServices::copyText(const QByteArray& text) {
    auto* data = new QMimeData;
    QStringDecoder fromUtf8(QStringDecoder::Utf8);
    const QString decoded = fromUtf8.decode(text);
    if (fromUtf8.hasError())
        data->setData(QStringLiteral("text/plain"), text);
    else
        data->setText(decoded);
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace tessarine
