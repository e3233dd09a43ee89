#include "platform/callers_contract.h"
#include "platform/callers_boxes_contract.h"

#include "platform/fake_world.h"

namespace verlume {

INSTANTIATE_TYPED_TEST_SUITE_P(FakeSocket, CallersContract, fake::FakeWorld);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeSocket, CallersBoxesContract, fake::FakeWorld);

}  // namespace verlume
