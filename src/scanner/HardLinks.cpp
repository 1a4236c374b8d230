#include "scanner/HardLinks.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <mutex>
#include <optional>
#include <vector>

namespace tessarine {

namespace {

// Enough that eight walker threads seldom meet at one lock.
constexpr int shardBits = 6;
constexpr std::size_t shardCount = std::size_t(1) << shardBits;
constexpr std::size_t firstCapacity = 16;

// The first name in listing order met so far of one file. Linux hands st_dev out in 32 bits (the
// kernel's dev_t), which keeps a record at 24 bytes.
struct FirstName {
    quint64 inode;
    ListedDirectory* folder; // null: a free slot
    quint32 position;
    quint32 device;
};

static_assert(sizeof(FirstName) == 24, "one record per file with several names");

// splitmix64's finaliser: inode numbers come in runs, the slots and shards must not.
quint64 hashOf(quint64 inode, quint32 device) {
    quint64 hash = inode + quint64(device) * 0x9E3779B97F4A7C15ull;
    hash = (hash ^ (hash >> 30)) * 0xBF58476D1CE4E5B9ull;
    hash = (hash ^ (hash >> 27)) * 0x94D049BB133111EBull;
    return hash ^ (hash >> 31);
}

quint64 hashOf(const FileIdentity& file) {
    return hashOf(quint64(file.inode), quint32(file.device));
}

// The hash's low half scaled to a count of slots, which need not be a power of two.
std::size_t scaled(quint64 hash, std::size_t count) {
    return std::size_t(((hash & 0xFFFFFFFFu) * count) >> 32);
}

} // namespace

std::size_t FileIdentity::Hash::operator()(const FileIdentity& file) const noexcept {
    return std::size_t(hashOf(file));
}

// An open-addressing table behind its own lock: records in place, no allocation per file. It is
// most of what the rule costs (a snapshot of half a million files makes half a million records),
// so it fills up to four fifths (linear probing still finds a file in a few neighbouring slots)
// and grows by half rather than doubling: about 60% full on average instead of 50% or less.
struct alignas(64) HardLinkClaims::Shard {
    std::mutex mutex;
    std::vector<FirstName> records;
    std::vector<qint64> sizes; // beside the records, in a summed listing only
    std::size_t used = 0;
    // The records' place for prefetch() to read without the lock; stale at worst, which a
    // prefetch shrugs off.
    std::atomic<quintptr> prefetchBase{0};
    std::atomic<std::size_t> prefetchCount{0};

    // Asks for the cache line of the file's first slot ahead of slotOf().
    void prefetch(quint64 hash) const {
        const quintptr slot = scaled(hash, prefetchCount.load(std::memory_order_relaxed));
        __builtin_prefetch(
            reinterpret_cast<const void*>(prefetchBase.load(std::memory_order_relaxed) +
                                          slot * sizeof(FirstName) + offsetof(FirstName, folder)));
    }

    // The slot of the file's record; a free one (folder null) the first time.
    std::size_t slotOf(quint64 hash, const FileIdentity& file, bool summed) {
        const auto inode = quint64(file.inode);
        const auto device = quint32(file.device);
        if ((used + 1) * 5 > records.size() * 4)
            grow(summed);
        for (std::size_t slot = firstSlot(hash);; slot = next(slot)) {
            FirstName& record = records[slot];
            if (!record.folder) {
                ++used;
                record.inode = inode;
                record.device = device;
                return slot;
            }
            if (record.inode == inode && record.device == device)
                return slot;
        }
    }

private:
    std::size_t firstSlot(quint64 hash) const { return scaled(hash, records.size()); }
    std::size_t next(std::size_t slot) const { return slot + 1 == records.size() ? 0 : slot + 1; }

    void grow(bool summed) {
        std::vector<FirstName> oldRecords(std::max(records.size() * 3 / 2, firstCapacity));
        std::vector<qint64> oldSizes(summed ? oldRecords.size() : 0);
        oldRecords.swap(records);
        oldSizes.swap(sizes);
        for (std::size_t old = 0; old < oldRecords.size(); ++old) {
            const FirstName& record = oldRecords[old];
            if (!record.folder)
                continue;
            std::size_t slot = firstSlot(hashOf(record.inode, record.device));
            while (records[slot].folder)
                slot = next(slot);
            records[slot] = record;
            if (summed)
                sizes[slot] = oldSizes[old];
        }
        prefetchBase.store(quintptr(records.data()), std::memory_order_relaxed);
        prefetchCount.store(records.size(), std::memory_order_relaxed);
    }
};

HardLinkClaims::HardLinkClaims(bool summed)
    : m_summed(summed)
    , m_shards(std::make_unique<Shard[]>(shardCount)) {}

HardLinkClaims::~HardLinkClaims() = default;

HardLinkClaims::Shard& HardLinkClaims::shardOf(quint64 hash) const {
    return m_shards[hash >> (64 - shardBits)];
}

void HardLinkClaims::claim(ListedDirectory& folder, std::span<const LinkedName> names) {
    // The records lie scattered over megabytes, so each claim starts with a cache miss, which cost
    // more than all the rest of it. Asked for together, a folder's misses are served side by side.
    for (const LinkedName& name : names) {
        const quint64 hash = hashOf(name.file);
        shardOf(hash).prefetch(hash);
    }
    for (const LinkedName& name : names)
        claim(name, {&folder, name.position});
}

void HardLinkClaims::claim(const LinkedName& name, const ListingPlace& place) {
    const quint64 hash = hashOf(name.file);
    Shard& shard = shardOf(hash);
    std::optional<ListingPlace> later;
    {
        std::lock_guard lock(shard.mutex);
        const std::size_t slot = shard.slotOf(hash, name.file, m_summed);
        FirstName& first = shard.records[slot];
        if (first.folder && !comesBefore(place, {first.folder, first.position})) {
            later = place;
        } else {
            if (first.folder)
                later = ListingPlace{first.folder, first.position};
            first.folder = place.folder;
            first.position = place.position;
            if (m_summed)
                shard.sizes[slot] = name.size;
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
    for (std::size_t shard = 0; shard < shardCount; ++shard) {
        const Shard& table = m_shards[shard];
        for (std::size_t slot = 0; slot < table.records.size(); ++slot) {
            if (table.records[slot].folder)
                table.records[slot].folder->addSummedSize(table.sizes[slot]);
        }
    }
}

} // namespace tessarine
