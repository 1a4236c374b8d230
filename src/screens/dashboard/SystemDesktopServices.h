#pragma once

#include "screens/dashboard/DesktopServices.h"

namespace tessarine {

// The running desktop: the file manager over the freedesktop.org FileManager1 interface, or the
// containing folder opened when no file manager answers it; the default application; the
// system clipboard.
class SystemDesktopServices : public DesktopServices {
public:
    void reveal(const QString& path) override;
    void open(const QString& path) override;
    void copyText(const QString& text) override;
};

} // namespace tessarine
