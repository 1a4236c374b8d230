#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace tessarine::testing {

// A folder that stops answering, as on a hung network mount: a FUSE file system
// (stalling_file_system.py) in a temporary folder. Its "answers" folder lists at once; opening
// "stalls" waits until release(), the end of this fixture, or a minute, so that a program waiting
// for it fails its test instead of hanging; it unmounts itself once released, even after a crash.
class StallingMount {
public:
    StallingMount();
    ~StallingMount();
    StallingMount(const StallingMount&) = delete;
    StallingMount& operator=(const StallingMount&) = delete;

    // Why there is no mount (no /dev/fuse, no fusepy, mounting refused); empty when mounted.
    QString unavailableReason() const { return m_unavailable; }
    QString path() const { return m_folder.path(); }
    QString stallingFolder() const { return path() + QStringLiteral("/stalls"); }

    // Blocks until `count` openings of "stalls" in all have started to wait; false when none
    // came within the deadline.
    bool waitForStalls(int count = 1);
    // Whether openings still wait: false once released, whoever released it.
    bool isStalling();
    void release();

private:
    void readOutput();

    QTemporaryDir m_folder;
    QProcess m_fileSystem;
    QByteArray m_output;
    QString m_unavailable;
};

} // namespace tessarine::testing

// Skips the test, saying why, where the machine cannot mount the file system.
#define SKIP_WITHOUT_FUSE(mount)                                                                   \
    if (!(mount).unavailableReason().isEmpty())                                                    \
    QSKIP(qPrintable((mount).unavailableReason()))
