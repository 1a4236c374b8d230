#pragma once

#include "screens/dashboard/DesktopServices.h"

#include "model/PathBytes.h"

#include <QStringList>

namespace tessarine {

// Keeps what the views asked of the desktop instead of opening file managers: each request as
// text, and as the bytes handed over (a file's URL as it is encoded, the copied text).
struct RecordedDesktop : DesktopServices {
    QStringList requests;
    QList<QByteArray> handed;
    void reveal(const QUrl& file) override { record(QByteArrayLiteral("reveal "), file); }
    void open(const QUrl& file) override { record(QByteArrayLiteral("open "), file); }
    void copyText(const QByteArray& text) override {
        requests.append(QStringLiteral("copy ") + pathFromBytes(text));
        handed.append(text);
    }

private:
    void record(const QByteArray& verb, const QUrl& file) {
        requests.append(QString::fromLatin1(verb) + pathFromUrl(file));
        handed.append(file.toEncoded());
    }
};

} // namespace tessarine
