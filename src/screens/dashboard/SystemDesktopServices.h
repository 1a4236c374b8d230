#pragma once

#include "screens/dashboard/DesktopServices.h"

namespace tessarine {

// The running desktop: the file manager over the freedesktop.org FileManager1 interface, or the
// containing folder opened when no file manager answers it; the default application; the
// system clipboard.
class SystemDesktopServices : public DesktopServices {
public:
    void reveal(const QUrl& file) override;
    void open(const QUrl& file) override;
    void copyText(const QByteArray& text) override;
};

} // namespace tessarine
