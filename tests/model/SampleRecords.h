#pragma once

#include "model/Records.h"

namespace tessarine::testing {

// A result that uses every member: a nested folder tree, the empty extension, depths that sort
// differently as text and as numbers, integers beyond 2^53 and path text that needs escaping.
// Every member value that the failure tests edit occurs once in its encoded form.
AnalysisResult fullResult();

} // namespace tessarine::testing
