#include "support/program_copy.h"

namespace verlume::fake {

ProgramCopy::ProgramCopy(FakeNetwork& network, std::u16string_view nickname)
    : ProgramCopy(network,
                  std::u16string(u"[General]\r\nDateStamp=False\r\nTimeStamp=False\r\n"
                                 u"Macrosfolder=/macros/\r\nNickname=")
                      .append(nickname)
                      .append(u"\r\n[Logging]\r\nLogfolder=/logs/\r\nLogdialogue=True\r\n"),
                  SettingsFile{}) {}

ProgramCopy::ProgramCopy(FakeNetwork& network, std::u16string_view settings, SettingsFile)
    : platform(network), program(platform.platform) {
  platform.files.MakeFolder(u"/macros");
  platform.files.MakeFolder(u"/logs");
  platform.files.ReplaceText(u"/verlume/Verlume.ini", settings);
  program.Start();
  platform.window.freeSizer1.onPostLayout();
}

ProgramCopy::~ProgramCopy() = default;

}  // namespace verlume::fake
