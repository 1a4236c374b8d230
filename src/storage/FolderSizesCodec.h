#pragma once

#include "model/FolderSizes.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace tessarine {

// The bytes of a folder sizes file. A binary table rather than JSON: it is written with every
// saved scan, and as text the folders of /usr took several times the scan's own history file.
//
//   magic      8 bytes "TESSFLDR"
//   version    1 byte, 1
//   cutoff     varint
//   rows       varint, the number of rows that follow
//   each row   varint  its index minus its parent's index (0 for the scanned folder only)
//              varint  name length, then the name's bytes as on disk (none for the scanned folder)
//              varint  size in bytes
//              varint  file count
//   checksum   16 bytes, the MD5 of everything before it
//
// A varint is an unsigned LEB128: seven bits a byte, least significant first, the high bit set
// on every byte but the last. Rows come parents first, each naming its parent by the distance back
// to it, so a path is never written twice and the usual distance is one byte.
QByteArray encodeFolderSizes(const FolderSizes& sizes);

// None for anything that is not a whole, intact table of this version: a file cut short, changed
// on disk, from another version or another program. Nothing is trusted before the checksum holds,
// and every count and length is checked against the bytes that are left.
std::optional<FolderSizes> decodeFolderSizes(QByteArrayView bytes);

} // namespace tessarine
