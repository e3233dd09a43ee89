#include "people/peer_book_file.h"

#include <gtest/gtest.h>

#include "people/peer_book_text.h"
#include "people/people_samples.h"
#include "platform_fake/fake_file_system.h"

namespace verlume {
namespace {

constexpr std::u16string_view kPeersPath = u"/verlume/Verlume.peers";
constexpr std::u16string_view kBadPath = u"/verlume/Verlume.peers.bad";

class PeerBookFileTest : public testing::Test {
 protected:
  PeerBookFileTest() {
    files.MakeFolder(u"/verlume");
    state.IniFile = u"/verlume/Verlume.ini";
  }
  PeerBookTrouble Read() {
    return file.Read(book, [this] { ++logged; });
  }
  void Write() {
    file.Write(book, [this] { ++logged; });
  }
  std::string BytesOf(std::u16string_view path) const { return files.ReadBytes(path); }

  AppState state;
  fake::FakeFileSystem files;
  PeerBookFile file{state, files};
  PeerBook book;
  int logged = 0;
};

TEST_F(PeerBookFileTest, TheBookIsKeptBesideTheSettings) {
  EXPECT_EQ(Read(), PeerBookTrouble::None) << "there is none yet";
  book.Meet(MeetingOf(1, u"Bob"));
  Write();
  EXPECT_TRUE(files.IsFile(kPeersPath));
  PeerBook other;
  PeerBookFile again(state, files);
  EXPECT_EQ(again.Read(other, [] {}), PeerBookTrouble::None);
  EXPECT_EQ(other.Peers(), book.Peers());
  EXPECT_EQ(logged, 0);
}

TEST_F(PeerBookFileTest, AFileThatIsNotWholeIsCopiedAndTheRestIsUsed) {
  book.Meet(MeetingOf(1, u"Bob"));
  const std::u16string damaged = PeerBookText(book) + u"nonsense";
  files.ReplaceText(kPeersPath, damaged, Readers::OwnerOnly);
  book = {};
  EXPECT_EQ(Read(), PeerBookTrouble::NotWhole);
  EXPECT_EQ(book.Peers().size(), 1u);
  EXPECT_EQ(files.ReadText(kBadPath), damaged);
  book = {};
  EXPECT_EQ(Read(), PeerBookTrouble::None) << "told once";
  const Message note = file.TroubleNote(PeerBookTrouble::NotWhole);
  EXPECT_NE(note.text.find(kBadPath), note.text.npos);
}

TEST_F(PeerBookFileTest, AFileThatCannotBeReadStaysAsItIs) {
  files.ReplaceText(kPeersPath, u"; mine", Readers::OwnerOnly);
  files.readsFail = FailureNumber::PermissionDenied;
  EXPECT_EQ(Read(), PeerBookTrouble::Unreadable);
  EXPECT_EQ(logged, 1);
  book.Meet(MeetingOf(1, u"Bob"));
  Write();
  files.readsFail.reset();
  EXPECT_EQ(BytesOf(kPeersPath), "; mine");
  EXPECT_NE(file.TroubleNote(PeerBookTrouble::Unreadable).text.find(kPeersPath),
            std::u16string::npos);
}

TEST_F(PeerBookFileTest, AFolderInItsPlaceIsTold) {
  files.MakeFolder(kPeersPath);
  EXPECT_EQ(Read(), PeerBookTrouble::Unreadable);
}

TEST_F(PeerBookFileTest, AFileThatIsTooLargeIsNotRead) {
  files.files[std::u16string(kPeersPath)] = std::string(kLargestPeerBook + 1, ';');
  EXPECT_EQ(Read(), PeerBookTrouble::Unreadable);
}

TEST_F(PeerBookFileTest, WhatCannotBeCopiedIsNotReplaced) {
  files.ReplaceText(kPeersPath, u"nonsense", Readers::OwnerOnly);
  files.writesFail = FailureNumber::DiskFull;
  EXPECT_EQ(Read(), PeerBookTrouble::CopyFailed);
  files.writesFail.reset();
  book.Meet(MeetingOf(1, u"Bob"));
  Write();
  EXPECT_EQ(BytesOf(kPeersPath), "nonsense");
  state.IsGreek = true;
  EXPECT_EQ(file.TroubleNote(PeerBookTrouble::CopyFailed).title, u"Άτομα");
}

TEST_F(PeerBookFileTest, AFailureToWriteIsLoggedAndTriedAgain) {
  files.writesFail = FailureNumber::DiskFull;
  book.Meet(MeetingOf(1, u"Bob"));
  Write();
  EXPECT_EQ(logged, 1);
  files.writesFail.reset();
  Write();
  EXPECT_EQ(files.ReadText(kPeersPath), PeerBookText(book));
}

}  // namespace
}  // namespace verlume
