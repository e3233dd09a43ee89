// Scenes of private conversations, with made-up people: what they show needs a peer otherwise.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "platform/platform.h"

namespace verlume::gallery {

struct PrivateScene {
  QString name;
  std::function<void()> enter;
};

// `take` takes a picture of the main window. The scenes of the windows People and Verify show them
// until they are closed.
std::vector<PrivateScene> PrivateScenes(Platform& platform, const std::function<void()>& take);

}  // namespace verlume::gallery
