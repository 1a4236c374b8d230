#include "StandardOutputCapture.h"

#include <cstdio>
#include <unistd.h>

namespace tessarine::testing {

StandardOutputCapture::StandardOutputCapture() {
    if (!m_sink.open())
        return;
    std::fflush(stdout);
    m_savedOutput = ::dup(STDOUT_FILENO);
    ::dup2(m_sink.handle(), STDOUT_FILENO);
}

StandardOutputCapture::~StandardOutputCapture() {
    finish();
}

QByteArray StandardOutputCapture::finish() {
    if (m_savedOutput < 0)
        return {};
    std::fflush(stdout);
    ::dup2(m_savedOutput, STDOUT_FILENO);
    ::close(m_savedOutput);
    m_savedOutput = -1;
    m_sink.seek(0);
    return m_sink.readAll();
}

} // namespace tessarine::testing
