#pragma once

#include <csignal>

namespace tessarine::cli {

// While it lives, the first Ctrl-C becomes a request that the running operation polls, so that a
// scan can stop cleanly; a second Ctrl-C ends the process at once in case stopping hangs. Before
// and after, Ctrl-C keeps its usual effect: there is nothing to clean up then.
class InterruptCatcher {
public:
    InterruptCatcher();
    ~InterruptCatcher();
    InterruptCatcher(const InterruptCatcher&) = delete;
    InterruptCatcher& operator=(const InterruptCatcher&) = delete;

    bool interrupted() const;

private:
    struct sigaction m_previous = {};
};

} // namespace tessarine::cli
