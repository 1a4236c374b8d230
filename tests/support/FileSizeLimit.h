#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

namespace tessarine::testing {

// Caps the size of any file this process writes for the length of a scope: a write past the cap
// fails with "File too large", much as on a full disk, for any user and on any file system.
class FileSizeLimit {
public:
    explicit FileSizeLimit(qint64 bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_saved{};
    void (*m_savedHandler)(int) = nullptr;
};

} // namespace tessarine::testing
