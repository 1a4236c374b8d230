#pragma once

#include <cmath>
#include <cstdint>

namespace tessarine::bench {

// SplitMix64: tiny, fast and fully specified, so the same seed gives the same tree with any
// compiler or standard library (the distributions of <random> are not portable).
class Random {
public:
    explicit Random(std::uint64_t seed)
        : m_state(seed) {}

    std::uint64_t next() {
        std::uint64_t z = (m_state += 0x9E3779B97F4A7C15ULL);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    // Uniform in [0, 1).
    double unit() { return static_cast<double>(next() >> 11) * 0x1.0p-53; }

    // Uniform in [0, bound); the modulo bias is irrelevant for bounds this small.
    std::uint64_t below(std::uint64_t bound) { return next() % bound; }

    bool chance(double probability) { return unit() < probability; }

    // Log-uniform in [low, high]: file sizes span orders of magnitude, and real trees hold far
    // more small files than large ones.
    std::int64_t logUniform(std::int64_t low, std::int64_t high) {
        const double lo = std::log(static_cast<double>(low) + 1.0);
        const double hi = std::log(static_cast<double>(high) + 1.0);
        return static_cast<std::int64_t>(std::exp(lo + unit() * (hi - lo))) - 1;
    }

private:
    std::uint64_t m_state;
};

} // namespace tessarine::bench
