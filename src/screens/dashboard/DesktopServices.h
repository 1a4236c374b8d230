#pragma once

#include <QString>

namespace tessarine {

// What the desktop does with a scanned file on the user's request. Behind an interface so that
// tests record the requests instead of opening file managers and editors.
class DesktopServices {
public:
    virtual ~DesktopServices() = default;

    // Shows the file selected in the desktop's file manager.
    virtual void reveal(const QString& path) = 0;
    // Opens the file with its default application.
    virtual void open(const QString& path) = 0;
    // Replaces the clipboard's text.
    virtual void copyText(const QString& text) = 0;
};

} // namespace tessarine
