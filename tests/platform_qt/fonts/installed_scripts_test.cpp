#include "platform_qt/fonts/installed_scripts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <utility>

namespace verlume::qt {
namespace {

TEST(InstalledScripts, OfATable) {
  const QByteArray header = QByteArray::fromHex("00010000 000A 0000 0000");
  const QByteArray table = header + QByteArray::fromHex("0002") + "dev2" +
                           QByteArray::fromHex("0000") + "khmr" + QByteArray::fromHex("0000");
  EXPECT_EQ(ScriptsOf(table), (QSet<QChar::Script>{QChar::Script_Devanagari, QChar::Script_Khmer}));
  for (int size = 0; size < table.size(); ++size) ScriptsOf(table.left(size));
  EXPECT_EQ(ScriptsOf(table.left(18)), (QSet<QChar::Script>{QChar::Script_Devanagari}));
  EXPECT_TRUE(ScriptsOf(QByteArray()).isEmpty());
}

void LookAtAllFonts() {
  while (!InstalledScripts::Instance().IsComplete()) InstalledScripts::Instance().RunTurn();
}

// What Qt knows about the installed fonts must not be contradicted.
TEST(InstalledScripts, HaveTheWritingSystemsThatFontsAreMadeFor) {
  LookAtAllFonts();
  const std::pair<QFontDatabase::WritingSystem, QChar::Script> kScripts[] = {
      {QFontDatabase::Latin, QChar::Script_Latin},
      {QFontDatabase::Greek, QChar::Script_Greek},
      {QFontDatabase::Hebrew, QChar::Script_Hebrew},
      {QFontDatabase::Armenian, QChar::Script_Armenian},
      {QFontDatabase::Georgian, QChar::Script_Georgian},
      {QFontDatabase::Arabic, QChar::Script_Arabic},
      {QFontDatabase::Devanagari, QChar::Script_Devanagari},
      {QFontDatabase::Khmer, QChar::Script_Khmer}};
  for (const auto& [system, script] : kScripts) {
    if (QFontDatabase::families(system).isEmpty()) continue;
    EXPECT_TRUE(InstalledScripts::Instance().Shows(script)) << script;
  }
}

}  // namespace
}  // namespace verlume::qt
