// A whole program in memory, for tests.
#pragma once

#include <string>

#include "people/peer_book.h"
#include "platform_fake/fake_platform.h"
#include "shell/program/program.h"

namespace verlume::fake {

// A copy of the program on an in-memory platform, started, with its folders in place.
struct ProgramCopy {
  // Starts with the folders chosen and without stamps on the lines.
  ProgramCopy(FakeNetwork& network, std::u16string_view nickname);

  // The same, with people whom it knows already.
  ProgramCopy(FakeNetwork& network, std::u16string_view nickname, const PeerBook& knows);

  struct SettingsFile {};
  ProgramCopy(FakeNetwork& network, std::u16string_view settings, SettingsFile);
  ~ProgramCopy();

  void Enter(std::u16string line) { platform.window.rtbCommands.Type(line + u"\r"); }
  std::u16string Dialogue() const { return platform.window.rtbData.Text(); }
  std::u16string Status() const { return platform.window.lblStatus.caption; }
  std::u16string Settings() const { return platform.files.ReadText(u"/verlume/Verlume.ini"); }
  std::u16string Lock() const { return platform.window.lblLock.caption; }
  std::u16string Peers() const { return platform.files.ReadText(u"/verlume/Verlume.peers"); }
  FakePrivacy& Privacy() { return platform.socket.privacy; }
  const FakeKeyBar& Bar() const { return platform.window.keyBar; }
  Color Lamp() const { return platform.window.shpStatus.fill; }

  FakePlatform platform;
  Program program;

 private:
  void Start(std::u16string_view settings);
};

}  // namespace verlume::fake
