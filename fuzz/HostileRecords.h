#pragma once

#include "model/Records.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace tessarine::fuzz {

// How the texts of a made-up result are drawn.
enum class TextKind {
    // Any valid Unicode, as names decoded from disk are: controls, quotes, commas, line feeds.
    decodable,
    // Any sequence of UTF-16 units, lone surrogates included, as no disk gives but memory may hold.
    anyUnits,
};

// A result whose every member is drawn from the fuzzer's bytes: sizes and counts of any 64-bit
// value, dates from before year 1 to after 9999, durations that are not numbers, texts full of
// what writers must escape, and a small folder tree.
AnalysisResult hostileResult(FuzzedDataProvider& input, TextKind texts);

} // namespace tessarine::fuzz
