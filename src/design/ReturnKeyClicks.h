#pragma once

class QCoreApplication;

namespace tessarine {

// Lets Return and Enter press the focused button, as Space does. Qt Quick's buttons take only the
// platform's press keys (Space on Linux), while desktop users expect Return to act on whatever
// button the keyboard reached; one application-wide filter covers every button, present or future.
void installReturnKeyClicks(QCoreApplication& application);

} // namespace tessarine
