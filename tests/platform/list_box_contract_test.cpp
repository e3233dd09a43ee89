// The in-memory list box keeps the list box's contract.
#include "platform/list_box_contract.h"

#include "platform_fake/fake_controls.h"

namespace verlume {
namespace {

class FakeListMaker {
 public:
  ListBox& list() { return list_; }
  void Choose(int index) { list_.Choose(index); }
  void PressDown() { list_.PressDown(); }

 private:
  fake::FakeListBox list_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ListBoxContract, FakeListMaker);

}  // namespace
}  // namespace verlume
