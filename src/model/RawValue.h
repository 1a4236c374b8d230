#pragma once

#include <QStringView>

#include <optional>

namespace tessarine {

// Enumerations that are shown or stored carry a text that is both their display text and their
// stored value. Construction from that text is exact and case-sensitive; each enumeration header
// declares its own specialisation.
template <typename E> std::optional<E> fromRawValue(QStringView raw);

} // namespace tessarine
