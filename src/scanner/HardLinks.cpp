#include "scanner/HardLinks.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <vector>

namespace tessarine {

namespace {

// Enough that eight walker threads seldom meet at one lock.
constexpr int shardBits = 6;
constexpr std::size_t firstCapacity = 16;

// The first name in listing order met so far of one file. Linux hands st_dev out in 32 bits (the
// kernel's dev_t), which keeps a record at 32 bytes.
struct FirstName {
    quint64 inode;
    ListedDirectory* folder; // null: a free slot
    qint64 size;             // of a summed name, settled later
    quint32 position;
    quint32 device;
};

static_assert(sizeof(FirstName) == 32, "one record per file with several names");

// splitmix64's finaliser: inode numbers come in runs, the slots and shards must not.
quint64 hashOf(quint64 inode, quint32 device) {
    quint64 hash = inode + quint64(device) * 0x9E3779B97F4A7C15ull;
    hash = (hash ^ (hash >> 30)) * 0xBF58476D1CE4E5B9ull;
    hash = (hash ^ (hash >> 27)) * 0x94D049BB133111EBull;
    return hash ^ (hash >> 31);
}

} // namespace

// An open-addressing table (linear probing, at most three quarters full) behind its own lock:
// records in place, no allocation per file.
struct alignas(64) HardLinkClaims::Shard {
    std::mutex mutex;
    std::vector<FirstName> table; // a power of two of them, or none yet
    std::size_t used = 0;

    // The record of the file; a free one (folder null) the first time.
    FirstName& recordOf(quint64 hash, quint64 inode, quint32 device) {
        if ((used + 1) * 4 > table.size() * 3)
            grow();
        const std::size_t mask = table.size() - 1;
        for (std::size_t slot = hash & mask;; slot = (slot + 1) & mask) {
            FirstName& record = table[slot];
            if (!record.folder) {
                ++used;
                record.inode = inode;
                record.device = device;
                return record;
            }
            if (record.inode == inode && record.device == device)
                return record;
        }
    }

    void grow() {
        std::vector<FirstName> old(std::max(table.size() * 2, firstCapacity));
        old.swap(table);
        const std::size_t mask = table.size() - 1;
        for (const FirstName& record : old) {
            if (!record.folder)
                continue;
            std::size_t slot = hashOf(record.inode, record.device) & mask;
            while (table[slot].folder)
                slot = (slot + 1) & mask;
            table[slot] = record;
        }
    }
};

HardLinkClaims::HardLinkClaims(bool summed)
    : m_summed(summed)
    , m_shards(std::make_unique<Shard[]>(std::size_t(1) << shardBits)) {}

HardLinkClaims::~HardLinkClaims() = default;

void HardLinkClaims::claim(const FileIdentity& file, const ListingPlace& place, qint64 size) {
    const auto inode = quint64(file.inode);
    const auto device = quint32(file.device);
    const quint64 hash = hashOf(inode, device);
    Shard& shard = m_shards[hash >> (64 - shardBits)];
    std::optional<ListingPlace> later;
    {
        std::lock_guard lock(shard.mutex);
        FirstName& first = shard.recordOf(hash, inode, device);
        if (first.folder && !comesBefore(place, {first.folder, first.position})) {
            later = place;
        } else {
            if (first.folder)
                later = ListingPlace{first.folder, first.position};
            first.folder = place.folder;
            first.position = place.position;
            first.size = size;
        }
    }
    // Each name loses at most once, and only here, so no other thread touches its entry now. A
    // listing that keeps its files keeps every visible entry: a position is an index.
    if (later && !m_summed)
        later->folder->entryAt(later->position).dropRepeatedLinkSize();
}

void HardLinkClaims::settle() {
    if (!m_summed)
        return;
    for (std::size_t shard = 0; shard < std::size_t(1) << shardBits; ++shard) {
        for (const FirstName& record : m_shards[shard].table) {
            if (record.folder)
                record.folder->addSummedSize(record.size);
        }
    }
}

} // namespace tessarine
