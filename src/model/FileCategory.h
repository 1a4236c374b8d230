#pragma once

#include "model/RawValue.h"
#include "model/RecordEnums.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>

namespace tessarine {

const std::array<FileCategory, 12>& allFileCategories();

// Display name and stored value, e.g. "Images", "3D & Design".
QString rawValue(FileCategory category);
// System symbol name, e.g. "photo.stack".
QString iconName(FileCategory category);
// Named system colour, e.g. "pink"; "secondary" (the dimmed foreground) for other.
QString colorName(FileCategory category);

// Category of a path extension given without its dot. Case and surrounding spaces or tabs are
// ignored; an unknown or empty extension is other.
FileCategory categoryForExtension(QStringView extension);

// The extensions of the table that map to category, sorted.
QStringList knownExtensions(FileCategory category);

template <> std::optional<FileCategory> fromRawValue<FileCategory>(QStringView raw);

} // namespace tessarine
