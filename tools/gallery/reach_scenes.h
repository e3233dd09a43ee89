// Scenes about who can call this computer, with made-up addresses: what they show needs a router
// otherwise.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "platform/platform.h"

namespace verlume::gallery {

struct ReachScene {
  QString name;
  std::function<void()> enter;
};

// `take` takes a picture of the main window. The scenes of the window Can I be called? show it
// until it is closed.
std::vector<ReachScene> ReachScenes(Platform& platform, const std::function<void()>& take);

}  // namespace verlume::gallery
