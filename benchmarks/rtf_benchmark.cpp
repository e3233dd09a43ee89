// How fast RTF is read and written: a chat line as it arrives from the peer, and a long dialogue as
// it is loaded from a file. MB/s count the characters of the RTF.
#include <benchmark/benchmark.h>

#include <string>

#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace {

using verlume::richtext::Document;
using verlume::richtext::ReadRtf;
using verlume::richtext::WriteRtf;

constexpr std::string_view kHeader =
    "{\\rtf1\\ansi\\ansicpg1253\\deff0\\deflang1032{\\fonttbl{\\f0\\fnil\\fcharset161 Tahoma;}}\r\n"
    "{\\colortbl ;\\red0\\green0\\blue255;}\r\n";

// Three formats, Greek and English.
constexpr std::string_view kLine =
    "\\viewkind4\\uc1\\pard\\f0\\fs17 \\'ea\\'e1\\'eb\\'e7\\'ec\\'dd\\'f1\\'e1 and hello to "
    "\\cf1\\b everybody\\cf0\\b0  \\i \\'f3\\'f4\\'e7\\'ed \\'f0\\'fc\\'eb\\'e7\\i0  of ours, see "
    "you\\par\r\n";

std::string ChatLine() {
  return std::string(kHeader) + std::string(kLine) + "}";
}

std::string LongDocument() {
  constexpr std::size_t kSize = 1'000'000;
  std::string rtf(kHeader);
  while (rtf.size() < kSize) rtf += kLine;
  return rtf + "}";
}

void CountCharacters(benchmark::State& state, std::size_t perIteration) {
  state.SetBytesProcessed(static_cast<std::int64_t>(perIteration) * state.iterations());
}

void ReadBytes(benchmark::State& state, const std::string& rtf) {
  for (auto _ : state) benchmark::DoNotOptimize(ReadRtf(rtf));
  CountCharacters(state, rtf.size());
}

void ReadString(benchmark::State& state, const std::string& bytes) {
  const std::u16string rtf(bytes.begin(), bytes.end());
  for (auto _ : state) benchmark::DoNotOptimize(ReadRtf(rtf));
  CountCharacters(state, rtf.size());
}

void Write(benchmark::State& state, const std::string& rtf) {
  const Document document = ReadRtf(rtf);
  for (auto _ : state) benchmark::DoNotOptimize(WriteRtf(document));
  CountCharacters(state, WriteRtf(document).size());
}

BENCHMARK_CAPTURE(ReadString, ChatLine, ChatLine());
BENCHMARK_CAPTURE(ReadBytes, ChatLine, ChatLine());
BENCHMARK_CAPTURE(Write, ChatLine, ChatLine());
BENCHMARK_CAPTURE(ReadString, LongDocument, LongDocument());
BENCHMARK_CAPTURE(ReadBytes, LongDocument, LongDocument());
BENCHMARK_CAPTURE(Write, LongDocument, LongDocument());

}  // namespace
