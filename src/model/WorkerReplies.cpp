#include "model/WorkerReplies.h"

namespace tessarine {

// Posting under the lock closes the gap between a worker's check and the object's destruction:
// once the destructor has the lock, nothing more is posted, and what was posted before is
// discarded with the object's pending events.
void WorkerReplies::Sender::post(std::function<void()> call) const {
    std::lock_guard lock(m_receiver->mutex);
    if (m_receiver->object)
        QMetaObject::invokeMethod(m_receiver->object, std::move(call), Qt::QueuedConnection);
}

WorkerReplies::~WorkerReplies() {
    std::lock_guard lock(m_receiver->mutex);
    m_receiver->object = nullptr;
}

} // namespace tessarine
