#pragma once

namespace tessarine {

// Qt draws a file dialog of its own unless the platform theme offers the desktop's. Where the
// desktop's portal answers for its file chooser on the session bus (GNOME, KDE, sandboxes), Qt's
// portal theme is chosen, so that the export's save dialog and the folder picker are the ones the
// desktop shows everywhere else. Elsewhere (no bus, no portal, a bare X server) Qt's own dialog
// stays. A platform theme the user named (QT_QPA_PLATFORMTHEME) is left as it is.
//
// Runs before the application object, which loads the platform theme as it starts.
void preferDesktopFileChooser();

} // namespace tessarine
