#include "platform/callers_contract.h"
#include "platform/callers_boxes_contract.h"
#include "platform_qt/world.h"

namespace verlume {

INSTANTIATE_TYPED_TEST_SUITE_P(QtSocket, CallersContract, qt::QtWorld);
INSTANTIATE_TYPED_TEST_SUITE_P(QtSocket, CallersBoxesContract, qt::QtWorld);

}  // namespace verlume
