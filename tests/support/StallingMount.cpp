#include "StallingMount.h"

#include <QFile>

namespace tessarine::testing {

namespace {

constexpr int deadlineMilliseconds = 60000;

// The Debian interpreter, which has python3-fusepy, whatever python3 comes first on the PATH.
const QString python = QStringLiteral("/usr/bin/python3");

} // namespace

StallingMount::StallingMount() {
    if (!QFile::exists(QStringLiteral("/dev/fuse"))) {
        m_unavailable = QStringLiteral("no /dev/fuse: FUSE file systems cannot be mounted here");
        return;
    }
    m_fileSystem.start(python, {QStringLiteral(TESSARINE_STALLING_FILE_SYSTEM), path()});
    while (!m_output.contains("ready\n") && m_fileSystem.waitForReadyRead(deadlineMilliseconds))
        readOutput();
    if (!m_output.contains("ready\n")) {
        m_unavailable = QStringLiteral("the FUSE file system did not mount (python3-fusepy, "
                                       "fuse3 and the right to mount are needed): ") +
                        QString::fromLocal8Bit(m_fileSystem.readAllStandardError());
        m_fileSystem.kill();
        m_fileSystem.waitForFinished();
    }
}

StallingMount::~StallingMount() {
    release();
    if (m_fileSystem.state() == QProcess::NotRunning)
        return;
    if (!m_fileSystem.waitForFinished(deadlineMilliseconds)) {
        m_fileSystem.kill();
        m_fileSystem.waitForFinished();
        QProcess::execute(QStringLiteral("umount"), {QStringLiteral("-l"), path()});
    }
}

bool StallingMount::waitForStalls(int count) {
    readOutput();
    while (m_output.count("stalled\n") < count &&
           m_fileSystem.waitForReadyRead(deadlineMilliseconds))
        readOutput();
    return m_output.count("stalled\n") >= count;
}

bool StallingMount::isStalling() {
    m_fileSystem.waitForReadyRead(0);
    readOutput();
    return m_fileSystem.state() == QProcess::Running && !m_output.contains("released\n");
}

void StallingMount::release() {
    if (m_fileSystem.state() == QProcess::Running)
        m_fileSystem.closeWriteChannel();
}

void StallingMount::readOutput() {
    m_output += m_fileSystem.readAllStandardOutput();
}

} // namespace tessarine::testing
