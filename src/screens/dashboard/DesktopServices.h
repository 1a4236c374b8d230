#pragma once

#include <QByteArray>
#include <QUrl>

namespace tessarine {

// What the desktop does with a scanned file on the user's request. Behind an interface so that
// tests record the requests instead of opening file managers and editors. Files come as local
// file URLs and text as bytes, so that a name that is not UTF-8 reaches the desktop as it is on
// the disk (model/PathBytes.h).
class DesktopServices {
public:
    virtual ~DesktopServices() = default;

    // Shows the file selected in the desktop's file manager.
    virtual void reveal(const QUrl& file) = 0;
    // Opens the file with its default application.
    virtual void open(const QUrl& file) = 0;
    // Replaces the clipboard's text.
    virtual void copyText(const QByteArray& text) = 0;
};

} // namespace tessarine
