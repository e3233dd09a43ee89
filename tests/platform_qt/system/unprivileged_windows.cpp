#include "platform_qt/system/unprivileged.h"

namespace verlume::qt {

Unprivileged::Unprivileged() = default;
Unprivileged::~Unprivileged() = default;

}  // namespace verlume::qt
