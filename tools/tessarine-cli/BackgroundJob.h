#pragma once

#include <QString>

#include <functional>

namespace tessarine::cli {

// A blocking operation (a scan, a tree build) and how to follow it while it runs.
struct BackgroundJob {
    // Runs on a worker thread that may outlive the call (see runInBackground), so it owns what
    // it touches.
    std::function<void()> work;
    std::function<void()> cancel;      // asks work to stop; may be called more than once
    std::function<QString()> describe; // the progress line; empty while there is nothing to show
};

// Runs the job's work on a worker thread while the calling thread's event loop polls, about eight
// times a second, for Ctrl-C (then cancels the job) and redraws the progress line on a terminal.
// Returns once the work has ended, and whether Ctrl-C was pressed meanwhile. Work still running
// half a second after Ctrl-C (stuck on a folder that does not answer) is left behind: the user
// asked to stop, and leaveProcess ends the program without it.
bool runInBackground(const BackgroundJob& job);

} // namespace tessarine::cli
