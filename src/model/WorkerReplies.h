#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <mutex>

namespace tessarine {

// The way back from worker threads (see WorkerThread.h) to the object that started them, which
// may be gone before a stuck worker ends. The object holds one as a member; each worker holds a
// Sender. Calls posted once the object is gone, or still queued when it goes, are dropped.
class WorkerReplies {
    struct Receiver {
        explicit Receiver(QObject* receiver)
            : object(receiver) {}
        std::mutex mutex;
        QObject* object; // null once it is gone
    };

public:
    class Sender {
    public:
        // Callable from any thread: runs `call` on the receiver's thread while it lives.
        void post(std::function<void()> call) const;

    private:
        friend class WorkerReplies;
        explicit Sender(std::shared_ptr<Receiver> receiver)
            : m_receiver(std::move(receiver)) {}
        std::shared_ptr<Receiver> m_receiver;
    };

    explicit WorkerReplies(QObject* receiver)
        : m_receiver(std::make_shared<Receiver>(receiver)) {}
    ~WorkerReplies();
    WorkerReplies(const WorkerReplies&) = delete;
    WorkerReplies& operator=(const WorkerReplies&) = delete;

    Sender sender() const { return Sender(m_receiver); }

private:
    std::shared_ptr<Receiver> m_receiver;
};

} // namespace tessarine
