#include "scanner/ListingArena.h"

#include <cstring>

namespace tessarine {

QByteArrayView ListingArena::copyName(QByteArrayView name) {
    auto* target = static_cast<char*>(allocate(std::size_t(name.size()) + 1, 1));
    std::memcpy(target, name.data(), std::size_t(name.size()));
    target[name.size()] = '\0';
    return {target, name.size()};
}

void* ListingArena::allocate(std::size_t bytes, std::size_t alignment) {
    const std::size_t padding =
        (alignment - reinterpret_cast<std::uintptr_t>(m_next) % alignment) % alignment;
    if (m_next && padding + bytes <= m_left) {
        std::byte* start = m_next + padding;
        m_next = start + bytes;
        m_left -= padding + bytes;
        return start;
    }
    // A block larger than a quarter chunk (a huge folder's entry array) gets a chunk of its own,
    // so the current chunk keeps serving small names instead of being abandoned half full.
    if (bytes > chunkSize / 4) {
        m_chunks.push_back(std::make_unique_for_overwrite<std::byte[]>(bytes));
        return m_chunks.back().get();
    }
    m_chunks.push_back(std::make_unique_for_overwrite<std::byte[]>(chunkSize));
    m_next = m_chunks.back().get() + bytes;
    m_left = chunkSize - bytes;
    return m_chunks.back().get();
}

} // namespace tessarine
