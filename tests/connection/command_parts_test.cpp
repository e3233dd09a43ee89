#include "connection/command_parts.h"

#include <gmock/gmock.h>

namespace verlume {
namespace {

using testing::ElementsAre;

TEST(CommandPartsTest, ALineWithoutBlankIsOnePart) {
  EXPECT_THAT(CommandParts(u"/CALL", 3), ElementsAre(u"/CALL"));
  EXPECT_THAT(CommandParts(u"", 3), ElementsAre(u""));
}

TEST(CommandPartsTest, EachBlankSeparates) {
  EXPECT_THAT(CommandParts(u"/CALL bob 4000", 3), ElementsAre(u"/CALL", u"bob", u"4000"));
  EXPECT_THAT(CommandParts(u"/CALL  bob", 3), ElementsAre(u"/CALL", u"", u"bob"));
  EXPECT_THAT(CommandParts(u"/CALL ", 3), ElementsAre(u"/CALL", u""));
}

TEST(CommandPartsTest, TheLastPartKeepsFurtherBlanks) {
  EXPECT_THAT(CommandParts(u"/CALL bob 4000 x", 3), ElementsAre(u"/CALL", u"bob", u"4000 x"));
  EXPECT_THAT(CommandParts(u"/NICK Old Bob ", 2), ElementsAre(u"/NICK", u"Old Bob "));
}

}  // namespace
}  // namespace verlume
