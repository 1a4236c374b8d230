#pragma once

#include <QString>

#include <functional>

namespace tessarine::cli {

// A blocking operation (a scan, a tree build) and how to follow it while it runs.
struct BackgroundJob {
    std::function<void()> work;        // runs on a worker thread
    std::function<void()> cancel;      // asks work to stop; may be called more than once
    std::function<QString()> describe; // the progress line; empty while there is nothing to show
};

// Runs the job's work on a worker thread while the calling thread's event loop polls, about eight
// times a second, for Ctrl-C (then cancels the job) and redraws the progress line on a terminal.
// Returns once the work has ended, and whether Ctrl-C was pressed meanwhile.
bool runInBackground(const BackgroundJob& job);

} // namespace tessarine::cli
