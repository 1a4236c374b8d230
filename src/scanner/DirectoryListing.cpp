#include "scanner/DirectoryListing.h"

#include <numeric>

namespace tessarine {

std::size_t DirectoryListing::reservedBytes() const {
    return std::accumulate(
        m_arenas.begin(), m_arenas.end(), std::size_t(0),
        [](std::size_t sum, const ListingArena& arena) { return sum + arena.reservedBytes(); });
}

} // namespace tessarine
