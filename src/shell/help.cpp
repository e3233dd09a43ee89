#include "shell/help.h"

namespace verlume {

void Help::mnuHelpDetailed_Click() {
  errors_.Guard(Procedure::mnuHelpDetailed_Click, [this] { platform_.help.ShowContents(); });
}

}  // namespace verlume
