// Choosing one of the program's folders.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace verlume {

// Lets the user choose a folder, starting from `current` if that exists, else from the program's
// own folder; one named `suggestion`, in the user's documents, is offered as well. The result ends
// in a separator; none when the user cancels. Throws on other failures.
std::optional<std::u16string> ChooseFolder(Platform& platform, std::u16string_view title,
                                           std::u16string_view current,
                                           std::u16string_view suggestion);

}  // namespace verlume
