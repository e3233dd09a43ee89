// Writes RTF that brings a reader to a given state.
#pragma once

#include <string>

#include "richtext/rtf_state.h"

namespace verlume::richtext {

// The beginning of a document behind which the same is in force as in `state`: the tables and their
// limits, the code page, every group that is kept, with its formats. Groups beyond the depth that
// is kept are left to the caller. At most about half a megabyte, where all the tables are full.
std::string WriteOpening(const RtfState& state);

// A font as it stands in a font table whose fallback count is 0, without the semicolon that ends
// it.
std::string WriteFont(const FontDeclaration& declaration);

}  // namespace verlume::richtext
