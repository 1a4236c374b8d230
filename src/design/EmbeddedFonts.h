#pragma once

namespace tessarine {

// Registers the fonts a build embedded in its resources (Inter and the icon font), for platforms
// without the packages that install them; without embedded fonts it does nothing and the
// platform's font database finds the families. Call before the first window.
void registerEmbeddedFonts();

} // namespace tessarine
