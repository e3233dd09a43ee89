#include "shell/shell_fixture.h"

namespace verlume {

ShellTest::ShellTest() {
  state.Title = u"Verlume";
  state.IniFile = kIniFile;
}

ShellTest::~ShellTest() = default;

}  // namespace verlume
