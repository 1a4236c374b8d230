#include "EmbeddedFonts.h"

#include <QDirIterator>
#include <QFontDatabase>

namespace tessarine {

void registerEmbeddedFonts() {
    QDirIterator fonts(QStringLiteral(":/tessarine/fonts"), QDir::Files);
    while (fonts.hasNext())
        QFontDatabase::addApplicationFont(fonts.next());
}

} // namespace tessarine
