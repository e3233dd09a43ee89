#include "support/program_copy.h"

#include "people/peer_book_text.h"

namespace verlume::fake {
namespace {

std::u16string UsualSettings(std::u16string_view nickname) {
  return std::u16string(
             u"[General]\r\nDateStamp=False\r\nTimeStamp=False\r\n"
             u"Macrosfolder=/macros/\r\nNickname=")
      .append(nickname)
      .append(u"\r\n[Logging]\r\nLogfolder=/logs/\r\nLogdialogue=True\r\n");
}

}  // namespace

ProgramCopy::ProgramCopy(FakeNetwork& network, std::u16string_view nickname)
    : ProgramCopy(network, UsualSettings(nickname), SettingsFile{}) {}

ProgramCopy::ProgramCopy(FakeNetwork& network, std::u16string_view nickname, const PeerBook& knows)
    : platform(network), program(platform.platform) {
  platform.files.ReplaceText(u"/verlume/Verlume.peers", PeerBookText(knows));
  Start(UsualSettings(nickname));
}

ProgramCopy::ProgramCopy(FakeNetwork& network, std::u16string_view settings, SettingsFile)
    : platform(network), program(platform.platform) {
  Start(settings);
}

void ProgramCopy::Start(std::u16string_view settings) {
  platform.files.MakeFolder(u"/macros");
  platform.files.MakeFolder(u"/logs");
  platform.files.ReplaceText(u"/verlume/Verlume.ini", settings);
  program.Start();
  platform.window.freeSizer1.onPostLayout();
}

ProgramCopy::~ProgramCopy() = default;

}  // namespace verlume::fake
