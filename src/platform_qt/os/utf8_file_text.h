// UTF-8 as it is written into files.
#pragma once

#include <string>
#include <string_view>

namespace verlume::qt {

// A lone surrogate becomes '?'.
std::string EncodeUtf8File(std::u16string_view text);

}  // namespace verlume::qt
