#pragma once

#include "tree/FolderTreeService.h"

namespace tessarine::testing {

// Holds the service's next build half-way through building until it is cancelled, on a record
// after the first of that phase, so that the interface has the record before it. Set it before
// the build starts.
void holdBuildHalfWay(FolderTreeService& service);

} // namespace tessarine::testing
