#include "people/lock_texts.h"

#include <gtest/gtest.h>

namespace verlume {
namespace {

class LockTextsTest : public testing::Test {
 protected:
  std::u16string English() const { return WordsOfLock(lock, false); }
  std::u16string Greek() const { return WordsOfLock(lock, true); }

  LockState lock;
};

TEST_F(LockTextsTest, WithoutAConnectionItSaysNothing) {
  EXPECT_EQ(English(), u"");
}

TEST_F(LockTextsTest, WhileKeysAreProvedItSaysSo) {
  lock.privacy = Privacy::Becoming;
  EXPECT_EQ(English(), u"Becoming private...");
  EXPECT_EQ(Greek(), u"Γίνεται ιδιωτική...");
}

TEST_F(LockTextsTest, InPrivateItSaysHowWellTheKeyIsKnown) {
  lock.privacy = Privacy::Private;
  lock.callsSelf = u"Bob";
  EXPECT_EQ(English(), u"Private, first time with this key");
  lock.acquaintance = Acquaintance::Known;
  lock.since = {2026, 11, 3};
  EXPECT_EQ(English(), u"Private, known since 3 November 2026");
  EXPECT_EQ(Greek(), u"Ιδιωτική, γνωστό κλειδί από τις 3 Νοεμβρίου 2026");
  lock.since.day = 1;
  EXPECT_EQ(Greek(), u"Ιδιωτική, γνωστό κλειδί από την 1η Νοεμβρίου 2026");
  lock.acquaintance = Acquaintance::Invited;
  EXPECT_EQ(English(), u"Private, by invitation");
}

TEST_F(LockTextsTest, WhoIsVerifiedHasTheNameThatTheUserKnows) {
  lock.privacy = Privacy::Private;
  lock.acquaintance = Acquaintance::Verified;
  EXPECT_EQ(English(), u"Private, verified");
  lock.name = u"Carol";
  lock.callsSelf = u"Carol";
  EXPECT_EQ(English(), u"Private, verified: Carol");
  lock.callsSelf = u"Bob";
  EXPECT_EQ(English(), u"Private, verified: Carol (calls itself Bob)");
  EXPECT_EQ(Greek(), u"Ιδιωτική, επαληθευμένη: Carol (ονομάζεται Bob)");
}

TEST_F(LockTextsTest, InClearItSaysWhy) {
  lock.privacy = Privacy::Clear;
  EXPECT_EQ(English(), u"Not private: the other program cannot");
  EXPECT_EQ(Greek(), u"Όχι ιδιωτική: το άλλο πρόγραμμα δεν μπορεί");
  lock.clear = ClearReason::NoOwnKey;
  EXPECT_EQ(English(), u"Not private: this program has no key");
  lock.clear = ClearReason::TurnedOff;
  EXPECT_EQ(English(), u"Not private: you have turned private conversations off");
}

TEST_F(LockTextsTest, AnotherWithTheNameIsMentioned) {
  lock.privacy = Privacy::Private;
  lock.callsSelf = u"Bob";
  lock.isAnotherKnown = true;
  EXPECT_EQ(English(), u"Private, first time with this key. Another Bob is known");
  lock.privacy = Privacy::Clear;
  EXPECT_EQ(Greek(),
            u"Όχι ιδιωτική: το άλλο πρόγραμμα δεν μπορεί. Είναι γνωστό και άλλο άτομο με το όνομα "
            u"Bob");
}

TEST_F(LockTextsTest, ThePictureSaysItToo) {
  lock.privacy = Privacy::Becoming;
  EXPECT_EQ(PictureOfLock(lock), LockPicture::Becoming);
  lock.privacy = Privacy::Private;
  EXPECT_EQ(PictureOfLock(lock), LockPicture::Closed);
  lock.isAnotherKnown = true;
  EXPECT_EQ(PictureOfLock(lock), LockPicture::Doubtful);
  lock.acquaintance = Acquaintance::Verified;
  EXPECT_EQ(PictureOfLock(lock), LockPicture::Verified);
  lock.privacy = Privacy::Clear;
  EXPECT_EQ(PictureOfLock(lock), LockPicture::Warning);
  lock.isAnotherKnown = false;
  EXPECT_EQ(PictureOfLock(lock), LockPicture::Open);
}

}  // namespace
}  // namespace verlume
