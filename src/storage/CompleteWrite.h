#pragma once

#include <QByteArray>
#include <QFileDevice>

namespace tessarine {

// Opens `file` for writing, unbuffered, and writes all of `bytes` to it. False when any of it
// could not be written, with the system's reason ("No space left on device") in errorString().
//
// Qt counts a write that the disk cut short as a success without a reason, and a buffered file
// (QSaveFile included) may even commit the truncated result. Unbuffered, every write reaches the
// system at once, and writing the rest again after a short write fails with the real reason.
bool openAndWriteCompletely(QFileDevice& file, const QByteArray& bytes);

} // namespace tessarine
