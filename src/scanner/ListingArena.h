#pragma once

#include <QByteArrayView>

#include <cstddef>
#include <memory>
#include <new>
#include <span>
#include <type_traits>
#include <vector>

namespace tessarine {

// A bump allocator for the names, entry arrays and folder records of one listing. Everything it
// holds is trivially destructible and freed at once with the arena, so a listing of any depth is
// released without recursion and without one heap block per item. One arena per walker thread:
// it takes no lock.
class ListingArena {
public:
    ListingArena() = default;
    ListingArena(ListingArena&&) noexcept = default;
    ListingArena& operator=(ListingArena&&) noexcept = default;

    // The copy is NUL-terminated (not counted in the view) so it can go straight to openat.
    QByteArrayView copyName(QByteArrayView name);

    template <typename T> std::span<T> copyArray(std::span<const T> items) {
        static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);
        if (items.empty())
            return {};
        auto* target = static_cast<T*>(allocate(items.size_bytes(), alignof(T)));
        std::uninitialized_copy(items.begin(), items.end(), target);
        return {target, items.size()};
    }

    template <typename T, typename... Args> T* make(Args&&... args) {
        static_assert(std::is_trivially_destructible_v<T>);
        return new (allocate(sizeof(T), alignof(T))) T(std::forward<Args>(args)...);
    }

private:
    void* allocate(std::size_t bytes, std::size_t alignment);

    static constexpr std::size_t chunkSize = 256 * 1024;

    std::vector<std::unique_ptr<std::byte[]>> m_chunks;
    std::byte* m_next = nullptr;
    std::size_t m_left = 0;
};

} // namespace tessarine
