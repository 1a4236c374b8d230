#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>
#include <optional>

namespace tessarine {

// Shared by the enumeration sources: the enumerations are dense from 0, so a case's raw value is
// the entry at its position and the reverse lookup is a scan of a handful of entries. The tables
// are compile-time constants, so even a static initialiser elsewhere may already ask for a raw
// value, and the texts handed out share the literals instead of copying them.
template <typename E, std::size_t N>
QString rawValueAt(const std::array<QStringView, N>& rawValues, E value) {
    const QStringView text = rawValues[static_cast<std::size_t>(value)];
    return QString::fromRawData(text.data(), text.size());
}

template <typename E, std::size_t N>
std::optional<E> caseWithRawValue(const std::array<QStringView, N>& rawValues, QStringView raw) {
    for (std::size_t i = 0; i < N; ++i) {
        if (rawValues[i] == raw)
            return static_cast<E>(i);
    }
    return std::nullopt;
}

} // namespace tessarine
