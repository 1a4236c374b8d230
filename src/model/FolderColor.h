#pragma once

#include "model/RawValue.h"
#include "model/RecordEnums.h"

#include <QString>
#include <QStringView>

#include <array>

namespace tessarine {

const std::array<FolderColor, 12>& allFolderColors();

// Stored value and named system colour, e.g. "blue".
QString rawValue(FolderColor color);

// The colour at position n of the palette, wrapping around (n mod 12; negative n wraps too).
FolderColor folderColorAt(qint64 n);

template <> std::optional<FolderColor> fromRawValue<FolderColor>(QStringView raw);

} // namespace tessarine
