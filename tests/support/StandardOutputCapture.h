#pragma once

#include <QByteArray>
#include <QTemporaryFile>

namespace tessarine::testing {

// Sends everything written to file descriptor 1 into a temporary file until finish(), so that a
// test can read the lines a component prints to standard output.
class StandardOutputCapture {
public:
    StandardOutputCapture();
    ~StandardOutputCapture();
    StandardOutputCapture(const StandardOutputCapture&) = delete;
    StandardOutputCapture& operator=(const StandardOutputCapture&) = delete;

    // Restores standard output and returns what was printed meanwhile.
    QByteArray finish();

private:
    QTemporaryFile m_sink;
    int m_savedOutput = -1;
};

} // namespace tessarine::testing
