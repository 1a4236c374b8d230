#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>
#include <optional>

namespace tessarine {

// Shared by the enumeration sources: the enumerations are dense from 0, so a case's raw value is
// the entry at its position and the reverse lookup is a scan of a handful of entries.
template <typename E, std::size_t N>
QString rawValueAt(const std::array<QString, N>& rawValues, E value) {
    return rawValues[static_cast<std::size_t>(value)];
}

template <typename E, std::size_t N>
std::optional<E> caseWithRawValue(const std::array<QString, N>& rawValues, QStringView raw) {
    for (std::size_t i = 0; i < N; ++i) {
        if (rawValues[i] == raw)
            return static_cast<E>(i);
    }
    return std::nullopt;
}

} // namespace tessarine
