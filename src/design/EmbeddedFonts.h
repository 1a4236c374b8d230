#pragma once

namespace tessarine {

// Registers the fonts the build carries in its resources: always "Inter Tabular" (Inter with its
// tabular digits, for figures), and Inter and the icon font too where the build embeds them for
// platforms without the packages that install them; otherwise the platform's font database finds
// those families. Call before the first window.
void registerEmbeddedFonts();

} // namespace tessarine
