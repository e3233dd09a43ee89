#include "platform_qt/spelling/dictionary.h"

#include <gtest/gtest.h>

#include <QTest>

#include "platform_qt/spelling/small_dictionaries.h"

namespace verlume::qt {
namespace {

using spelling::Script;

class DictionaryTest : public testing::Test {
 protected:
  std::unique_ptr<Dictionary> Open(Script script, const QString& locale = "el_GR") {
    return std::make_unique<Dictionary>(*FindDictionary(small.Folder(), script, locale));
  }
  // Whether the word is known, once the dictionary is ready.
  static bool Knows(Dictionary& dictionary, const QString& word) {
    std::optional<bool> knows;
    const auto isReady = [&] { return (knows = dictionary.Knows(word)).has_value(); };
    EXPECT_TRUE(QTest::qWaitFor(isReady, 30000));
    return knows.value_or(false);
  }

  SmallDictionaries small;
};

TEST_F(DictionaryTest, TheEnglishOfTheLocaleIsPreferred) {
  small.Add("en_US", "UTF-8", {"color"});
  small.Add("en_GB", "UTF-8", {"colour"});
  EXPECT_TRUE(Knows(*Open(Script::Latin, "el_GR"), "color"));
  EXPECT_FALSE(Knows(*Open(Script::Latin, "en_GB"), "color"));
  EXPECT_TRUE(Knows(*Open(Script::Latin, "en_GB"), "colour"));
  EXPECT_TRUE(Knows(*Open(Script::Latin, "en_ZA"), "color"));
}

TEST_F(DictionaryTest, WithoutItsFilesThereIsNone) {
  EXPECT_FALSE(FindDictionary(small.Folder(), Script::Greek, "el_GR"));
  EXPECT_FALSE(FindDictionary(small.Folder(), Script::Latin, "el_GR"));
  EXPECT_FALSE(FindDictionary("/nonexistent", Script::Greek, "el_GR"));
}

TEST_F(DictionaryTest, IsLoadedAtTheFirstQuestionAndTellsWhenItIsReady) {
  small.Add("en_US", "UTF-8", {"yes"});
  const auto dictionary = Open(Script::Latin);
  int ready = 0;
  dictionary->onReady = [&] { ++ready; };
  EXPECT_FALSE(dictionary->Knows("yes").has_value());
  EXPECT_TRUE(QTest::qWaitFor([&] { return ready == 1; }));
  EXPECT_EQ(dictionary->Knows("yes"), true);
  EXPECT_EQ(dictionary->Knows("yess"), false);
  EXPECT_EQ(dictionary->Knows("Yes"), true);
}

TEST_F(DictionaryTest, ReadsTheCharacterSetsOfTheDictionaries) {
  small.Add("el_GR", "ISO8859-7", {"\xED\xE1\xE9", "\xBC\xF7\xE9"});
  const auto greek = Open(Script::Greek);
  EXPECT_TRUE(Knows(*greek, "ναι"));
  EXPECT_TRUE(Knows(*greek, "Όχι"));
  EXPECT_FALSE(Knows(*greek, "ναί"));
  small.Add("el_GR", "UTF-8", {"ναι"});
  EXPECT_TRUE(Knows(*Open(Script::Greek), "ναι"));
  small.Add("en_US", "ISO8859-1", {"caf\xE9"});
  EXPECT_TRUE(Knows(*Open(Script::Latin), "café"));
  EXPECT_FALSE(Knows(*Open(Script::Latin), "cafe"));
}

TEST_F(DictionaryTest, WhatItCannotWriteIsKnown) {
  small.Add("el_GR", "ISO8859-7", {"\xED\xE1\xE9"});
  EXPECT_TRUE(Knows(*Open(Script::Greek), "ναὶ"));
  small.Add("en_US", "KOI8-R", {"yes"});
  EXPECT_TRUE(Knows(*Open(Script::Latin), "yess"));
}

// Those that ./test installs.
TEST_F(DictionaryTest, TheSystemsDictionariesKnowTheirLanguages) {
  Dictionary greek(*FindDictionary(DictionaryFolder(), Script::Greek, "el_GR"));
  EXPECT_TRUE(Knows(greek, "Καλημέρα"));
  EXPECT_FALSE(Knows(greek, "καλημερα"));
  Dictionary english(*FindDictionary(DictionaryFolder(), Script::Latin, "el_GR"));
  EXPECT_TRUE(Knows(english, "don't"));
  EXPECT_FALSE(Knows(english, "helo"));
}

TEST_F(DictionaryTest, SuggestsWhatIsLikeAWord) {
  small.Add("el_GR", "ISO8859-7", {"\xED\xE1\xE9", "\xBC\xF7\xE9"});
  const auto greek = Open(Script::Greek);
  EXPECT_FALSE(Knows(*greek, "ναιι"));
  QStringList found;
  greek->Suggest("ναιι", 5, [&](const QStringList& words) { found = words; });
  EXPECT_FALSE(greek->Knows("ναι").has_value()) << "busy";
  EXPECT_TRUE(QTest::qWaitFor([&] { return !found.isEmpty(); }));
  EXPECT_EQ(found, QStringList{"ναι"});
}

TEST_F(DictionaryTest, SuggestsNoMoreThanIsAskedFor) {
  small.Add("en_US", "UTF-8", {"cat", "car", "can", "cad", "cal", "cas", "cae"});
  const auto dictionary = Open(Script::Latin);
  EXPECT_FALSE(Knows(*dictionary, "caq"));
  std::optional<QStringList> found;
  dictionary->Suggest("caq", 5, [&](const QStringList& words) { found = words; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return found.has_value(); }));
  EXPECT_EQ(found->size(), 5);
}

TEST_F(DictionaryTest, MayGoWhileItIsBeingLoaded) {
  small.Add("en_US", "UTF-8", QList<QByteArray>(50000, "word"));
  bool isReady = false;
  auto dictionary = Open(Script::Latin);
  dictionary->onReady = [&] { isReady = true; };
  dictionary->Knows("word");
  dictionary.reset();
  QCoreApplication::processEvents();
  EXPECT_FALSE(isReady);
}

}  // namespace
}  // namespace verlume::qt
