#pragma once

#include "model/Records.h"

namespace tessarine::json {

class JsonWriter;

// Writes the folder and its whole subtree as one object, members sorted, without recursing.
void writeFolderTree(JsonWriter& writer, const FolderInfo& root);

} // namespace tessarine::json
