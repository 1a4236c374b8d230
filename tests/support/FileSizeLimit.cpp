#include "FileSizeLimit.h"

namespace tessarine::testing {

FileSizeLimit::FileSizeLimit(qint64 bytes) {
    // Without this the kernel ends the process with SIGXFSZ instead of failing the write.
    m_savedHandler = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_saved);
    rlimit capped = m_saved;
    capped.rlim_cur = rlim_t(bytes);
    setrlimit(RLIMIT_FSIZE, &capped);
}

FileSizeLimit::~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &m_saved);
    std::signal(SIGXFSZ, m_savedHandler);
}

} // namespace tessarine::testing
