#include "platform/privacy_contract.h"

#include "platform_qt/net/privacy_world.h"

namespace verlume {

INSTANTIATE_TYPED_TEST_SUITE_P(QtSocket, PrivacyContract, qt::QtPrivacyWorld);

}  // namespace verlume
