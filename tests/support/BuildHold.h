#pragma once

#include "tree/FolderTreeService.h"

namespace tessarine::testing {

// Keeps the service's builds in phase until they are cancelled, so a test can look at a build
// there and cancel it there. A build is held on a record after the first of that phase (for
// building, the first from half-way on), so the interface has the record before it; only the
// first build to get there is held. Set it before the build starts.
void holdBuildInPhase(FolderTreeService& service, FolderTreeProgress::Phase phase);

} // namespace tessarine::testing
