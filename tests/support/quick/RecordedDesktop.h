#pragma once

#include "screens/dashboard/DesktopServices.h"

#include <QStringList>

namespace tessarine {

// Keeps what the views asked of the desktop instead of opening file managers.
struct RecordedDesktop : DesktopServices {
    QStringList requests;
    void reveal(const QString& path) override { requests.append(QStringLiteral("reveal ") + path); }
    void open(const QString& path) override { requests.append(QStringLiteral("open ") + path); }
    void copyText(const QString& text) override { requests.append(QStringLiteral("copy ") + text); }
};

} // namespace tessarine
