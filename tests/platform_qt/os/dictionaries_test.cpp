#include "platform_qt/os/dictionaries.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform_qt/os/open_file.h"
#include "platform_qt/os/temporary_folder.h"

namespace verlume::qt {
namespace {

TEST(DictionariesTest, TheFolderIsTheSystemsOrBesideTheProgram) {
  const std::string folder = DictionaryFolder("C:/Verlume");
  EXPECT_TRUE(folder == "C:/Verlume/dictionaries" || folder == "/usr/share/hunspell") << folder;
}

// As hunspell opens it.
std::string Content(const std::string& path) {
  std::ifstream file(path.c_str());
  std::string line;
  std::getline(file, line);
  return line;
}

TEST(DictionariesTest, HunspellsPathIsOneOfTheSameFile) {
  const TemporaryFolder folder;
  OpenFile(folder.Path(u8"el_GR.aff"), Opening::ToMake).Write("SET UTF-8");
  const std::string path = HunspellPath(folder.Path() + "/el_GR.aff");
  EXPECT_EQ(Content(path), "SET UTF-8") << path;
  EXPECT_EQ(HunspellPath("\xff/NUL"), "\xff/NUL");
}

}  // namespace
}  // namespace verlume::qt
