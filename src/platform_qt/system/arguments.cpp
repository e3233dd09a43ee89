#include "platform_qt/system/arguments.h"

#include <algorithm>

namespace verlume::qt {
namespace {

struct QtOption {
  std::string_view name;
  bool hasValue = false;
};

// What the QApplication of Qt 6 and its plug-ins for displays take. A QApplication itself can only
// be asked where there is a display.
constexpr QtOption kQtOptions[] = {
    {"display", true},
    {"dograb"},
    {"geometry", true},
    {"icon", true},
    {"name", true},
    {"nograb"},
    {"platform", true},
    {"platformpluginpath", true},
    {"platformtheme", true},
    {"plugin", true},
    {"qwindowgeometry", true},
    {"qwindowicon", true},
    {"qwindowtitle", true},
    {"reverse"},
    {"session", true},
    {"style", true},
    {"stylesheet", true},
    {"title", true},
    {"widgetcount"},
};

// Null for another argument. Qt's options may begin with one or two dashes.
const QtOption* QtOptionIn(std::string_view argument) {
  if (!argument.starts_with('-')) return nullptr;
  argument.remove_prefix(argument.starts_with("--") ? 2 : 1);
  const auto* found = std::ranges::find(kQtOptions, argument, &QtOption::name);
  return found == std::end(kQtOptions) ? nullptr : found;
}

bool HoldsItsValue(std::string_view argument) {
  const std::size_t equals = argument.find('=');
  const QtOption* option =
      equals == argument.npos ? nullptr : QtOptionIn(argument.substr(0, equals));
  return option && option->hasValue;
}

}  // namespace

std::vector<std::string_view> OwnArguments(int argc, const char* const* argv) {
  std::vector<std::string_view> own;
  for (int index = 1; index < argc; ++index) {
    const std::string_view argument = argv[index];
    if (const QtOption* option = QtOptionIn(argument)) {
      if (option->hasValue) ++index;
    } else if (!HoldsItsValue(argument)) {
      own.push_back(argument);
    }
  }
  return own;
}

}  // namespace verlume::qt
