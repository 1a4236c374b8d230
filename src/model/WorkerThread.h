#pragma once

#include <functional>

namespace tessarine {

// Long work (a scan, a folder tree build) runs on a thread of its own that nothing ever waits for.
// A worker stuck in a system call on a folder that does not answer (a hung network mount) cannot
// be stopped, only left behind until the folder answers: so a worker owns all it touches (shared
// pointers and copies, never references to its starter), reports back through WorkerReplies, and
// whoever started it goes on at once after cancelling it. Each worker has its own thread, so a
// new one never queues behind stuck ones.
void startWorkerThread(std::function<void()> work);

// Workers started and not yet returned.
int runningWorkerThreads();

// What main() returns. With workers still running, the static destructors must not run under
// them (one stuck on a folder wakes whenever the folder answers and carries on): the standard
// streams are flushed and the process ends here, without them. Otherwise it returns `status`.
int leaveProcess(int status);

} // namespace tessarine
