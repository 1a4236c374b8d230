#pragma once

#include "BackgroundJob.h"
#include "ExitCode.h"
#include "ProgressText.h"
#include "StandardStreams.h"

#include <functional>
#include <memory>
#include <optional>

namespace tessarine::cli {

// A blocking operation of the core (a scan, a tree build), seen from the command line.
template <typename Outcome, typename Progress> struct CancellableOperation {
    // Runs on a worker thread that may outlive the operation (see runInBackground): it owns what
    // it touches.
    std::function<Outcome()> run;
    std::function<void()> cancel;
    std::function<std::optional<Progress>()> progress;
    Outcome cancelled; // what the operation gives when it is called off
};

// Runs the operation with a live progress line and Ctrl-C handling. An operation that finished in
// the same instant as Ctrl-C still counts as called off: the user asked for it.
template <typename Outcome, typename Progress>
Outcome runCancellable(const CancellableOperation<Outcome, Progress>& operation) {
    ProgressText<Progress> text;
    const auto outcome = std::make_shared<Outcome>(operation.cancelled);
    const bool interrupted = runInBackground({
        [run = operation.run, outcome] { *outcome = run(); },
        operation.cancel,
        [&] {
            const auto progress = operation.progress();
            return progress ? text.describe(*progress) : QString();
        },
    });
    // Two returns rather than one ?: expression, which would copy: the outcome is moved out, and
    // a folder tree of a large disk is tens of thousands of nodes.
    if (interrupted)
        return operation.cancelled;
    return std::move(*outcome);
}

// Prints a failure in its own words and gives the exit status; cancelling is not failing.
template <typename Error> int reportFailure(const Error& error) {
    printError(error.errorDescription());
    return error.kind == Error::Kind::cancelled ? exitCancelled : exitFailure;
}

} // namespace tessarine::cli
