#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "richtext/document_dump.h"
#include "richtext/rtf_cut.h"
#include "richtext/rtf_documents.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume::richtext {
namespace {

// Samples that this program shows otherwise than the control whose reading the dump is.
const std::map<std::string, std::string> kExceptions = {
    // Names no font and no size: these are the reader's own, not those of the control's box.
    {"bare", "/161 12 auto -|hello\n"},
    {"deff_used", "Arial/161 12 auto -|x α\nTahoma/161 12 auto -|y\n"},
    // \line is a line break, not a blank.
    {"line", "Tahoma/161 8 auto -|a\\nb\\nc\\nd\n"},
    // The start of a row is no line break; its end is one.
    {"table", "Tahoma/161 8 auto -|a\\tb\\t\\nc\n"},
    // The colour behind the text is not shown.
    {"highlight", "Tahoma/161 8 auto -|abc\n"},
    // A \' without two digits stands for nothing; reading goes on behind it.
    {"hex_bad", "Tahoma/161 8 auto -|azzb\n"},
    // What does not begin with {\rtf is plain text, and plain text is shown.
    {"leading_bom",
     "/161 12 auto -|{\\\\rtf1\\\\ansi\\\\ansicpg1253\\\\deff0\\\\deflang1032{\\\\fonttbl"
     "{\\\\f0\\\\fnil\\\\fcharset161 Tahoma;}{\\\\f1\\\\fnil\\\\fcharset0 Arial;}}\\n"
     "{\\\\colortbl ;\\\\red0\\\\green0\\\\blue255;\\\\red255\\\\green0\\\\blue0;}\\n"
     "\\\\f0\\\\fs16 a\\\\par}\n"},
};

struct Sample {
  std::string name;
  std::string rtf;
  std::string dump;
};

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<Sample> ReadSamples(const std::string& folder) {
  std::vector<Sample> samples;
  const std::filesystem::path path = std::string(VERLUME_TEST_DATA) + "/rtf/" + folder;
  for (const auto& entry : std::filesystem::directory_iterator(path)) {
    if (entry.path().extension() != ".rtf") continue;
    std::filesystem::path dump = entry.path();
    dump.replace_extension(".dump");
    samples.push_back({entry.path().stem().string(), ReadFile(entry.path()), ReadFile(dump)});
  }
  EXPECT_FALSE(samples.empty()) << path;
  return samples;
}

std::vector<Sample> AllSamples() {
  std::vector<Sample> samples = ReadSamples("pass");
  std::ranges::move(ReadSamples("fail"), std::back_inserter(samples));
  return samples;
}

std::u16string Widen(std::string_view bytes) {
  std::u16string text;
  for (const char byte : bytes) text.push_back(static_cast<unsigned char>(byte));
  return text;
}

// What document.h promises of every document.
void ExpectSound(const Document& document) {
  std::size_t length = 0;
  for (std::size_t i = 0; i < document.runs.size(); ++i) {
    const Run& run = document.runs[i];
    EXPECT_GT(run.length, 0u);
    EXPECT_LT(run.format.font, document.fonts.size());
    EXPECT_TRUE(i == 0 || document.runs[i - 1].format != run.format);
    length += run.length;
  }
  EXPECT_EQ(length, document.text.size());
}

TEST(RtfSamplesTest, EverySampleShowsWhatItsDumpSays) {
  std::size_t exceptions = 0;
  for (const Sample& sample : AllSamples()) {
    const auto exception = kExceptions.find(sample.name);
    const bool excepted = exception != kExceptions.end();
    exceptions += excepted ? 1 : 0;
    EXPECT_EQ(Dump(ReadRtf(sample.rtf)), excepted ? exception->second : sample.dump) << sample.name;
  }
  EXPECT_EQ(exceptions, kExceptions.size()) << "an exception names no sample";
}

TEST(RtfSamplesTest, WhatIsWrittenOfASampleReadsBackTheSame) {
  for (const Sample& sample : AllSamples()) {
    const Document document = ReadRtf(sample.rtf);
    const std::u16string rtf = WriteRtf(document);
    EXPECT_EQ(ReadRtf(rtf), document) << sample.name;
    EXPECT_TRUE(std::ranges::all_of(rtf, [](char16_t unit) { return unit > 0 && unit < 0x80; }))
        << sample.name;
    EXPECT_EQ(ReadRtf(std::string(rtf.begin(), rtf.end())), document) << sample.name;
  }
}

// A cut may fall into the escape of a character and make another of it, or of the bytes of one
// UTF-8 character up to three; all before that is shown as in the whole document.
TEST(RtfSamplesTest, EverySampleCutAnywhereShowsWhatIsThere) {
  constexpr std::size_t kEachUpTo = 1'500;  // of what is longer, one in so many
  constexpr std::size_t kStep = 97;
  constexpr std::size_t kSignature = 5;  // what is shorter than {\rtf is plain text
  for (const Sample& sample : ReadSamples("pass")) {
    SCOPED_TRACE(sample.name);
    const std::u16string whole = ReadRtf(sample.rtf).text;
    for (std::size_t cut = 0; cut < sample.rtf.size(); cut += cut < kEachUpTo ? 1 : kStep) {
      const std::string_view rtf = std::string_view(sample.rtf).substr(0, cut);
      const Document document = ReadRtf(rtf);
      ExpectSound(document);
      ExpectSound(ReadRtf(Widen(rtf)));
      if (cut < kSignature) continue;
      const std::size_t sure =
          document.text.size() - std::min<std::size_t>(document.text.size(), 3);
      EXPECT_EQ(document.text.substr(0, sure), whole.substr(0, sure)) << cut;
    }
  }
}

TEST(RtfSamplesTest, EverySampleCutInTwoShowsWhatItShows) {
  constexpr std::size_t kSteps = 200;
  const auto withoutBreaks = [](std::u16string text) {
    std::erase(text, u'\n');
    return text;
  };
  for (const Sample& sample : AllSamples()) {
    if (!LooksLikeRtf(sample.rtf)) continue;
    SCOPED_TRACE(sample.name);
    const std::u16string whole = withoutBreaks(ReadRtf(sample.rtf).text);
    // Without what stands behind it.
    const std::u16string text = Widen(sample.rtf);
    const std::size_t size = ReadRtfDocuments(text).front().source.size();
    const std::string_view rtf = std::string_view(sample.rtf).substr(0, size);
    for (std::size_t length = 0; length < size; length += 1 + size / kSteps) {
      const CutDocument cut = CutRtf(rtf, length);
      const std::u16string shown = ReadRtf(cut.before).text + ReadRtf(cut.behind).text;
      ASSERT_EQ(withoutBreaks(shown), whole) << length;
    }
  }
}

TEST(RtfSamplesTest, ShortSamplesWithABraceOrBackslashAnywhereStaySound) {
  constexpr std::size_t kLongest = 600;
  for (const Sample& sample : ReadSamples("pass")) {
    if (sample.rtf.size() > kLongest) continue;
    SCOPED_TRACE(sample.name);
    for (const char character : {'{', '}', '\\', '\0'}) {
      for (std::size_t place = 0; place < sample.rtf.size(); ++place) {
        std::string rtf = sample.rtf;
        rtf[place] = character;
        ExpectSound(ReadRtf(rtf));
      }
    }
  }
}

}  // namespace
}  // namespace verlume::richtext
