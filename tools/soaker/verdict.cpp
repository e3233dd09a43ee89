#include "verdict.h"

#include <algorithm>
#include <iterator>

namespace verlume::soak {
namespace {

constexpr std::int64_t kMiB = 1 << 20;
constexpr std::int64_t kHeapGrowth = 1 * kMiB;      // caches may still grow by this much
constexpr std::int64_t kResidentGrowth = 8 * kMiB;  // and memory that the heap keeps
// A connection that has just been closed may still have its own.
constexpr std::int64_t kDescriptorsOnTheirWay = 2;
// How much more processor time a line may cost than at the beginning. On a busy machine fewer lines
// are sent, and each bears a greater part of the fixed costs of timers and of watching the pane.
constexpr double kDearest = 2;
constexpr std::int64_t kAnswerNoise = 30;  // ms

constexpr std::int64_t Period::*kFields[] = {
    &Period::lines,        &Period::milliseconds,  &Period::processor, &Period::characters,
    &Period::residentFull, &Period::residentClear, &Period::heapClear, &Period::descriptors,
    &Period::worstAnswer,  &Period::worstOwnAnswer};

QString MiB(std::int64_t bytes) {
  return QString::number(static_cast<double>(bytes) / kMiB, 'f', 1);
}

double Quotient(std::int64_t dividend, std::int64_t divisor) {
  return static_cast<double>(dividend) / static_cast<double>(std::max<std::int64_t>(1, divisor));
}

double WorkPerLine(const Period& period) {
  return Quotient(period.processor, period.lines);
}

}  // namespace

QString PeriodLine(const Period& period) {
  QString line = QStringLiteral("period");
  for (const auto field : kFields) line += QLatin1Char(' ') + QString::number(period.*field);
  return line;
}

bool ParsePeriod(const QString& line, Period& period) {
  const QStringList words = line.simplified().split(QLatin1Char(' '));
  if (words.size() != 1 + qsizetype(std::size(kFields)) || words[0] != QLatin1String("period")) {
    return false;
  }
  for (qsizetype i = 1; i < words.size(); ++i) period.*kFields[i - 1] = words[i].toLongLong();
  return true;
}

QString TableHead() {
  return QStringLiteral(
      "lines: shown, of both sides     work: ms of a processor per line    text: KB shown\n"
      "memory in MiB: with the text, when it is cleared, and what the heap holds then\n"
      "answer: how long the window let an event wait at worst, in ms, and its own work in that\n\n"
      "copy minute  lines lines/s  work   text |  full cleared  heap | descriptors | answer   own");
}

QString TableRow(const QString& copy, std::size_t number, const Period& period) {
  return QStringLiteral("%1 %2 %3 %4 %5 %6 | %7 %8 %9 | %10 | %11 %12")
      .arg(copy, -4)
      .arg(number, 6)
      .arg(period.lines, 6)
      .arg(Quotient(period.lines * 1000, period.milliseconds), 7, 'f', 1)
      .arg(WorkPerLine(period), 5, 'f', 1)
      .arg(period.characters / 1000, 6)
      .arg(MiB(period.residentFull), 5)
      .arg(MiB(period.residentClear), 7)
      .arg(MiB(period.heapClear), 5)
      .arg(period.descriptors, 11)
      .arg(period.worstAnswer, 6)
      .arg(period.worstOwnAnswer, 5);
}

QStringList Complaints(const std::vector<Period>& periods) {
  QStringList complaints;
  if (periods.size() < 3) return complaints;
  const Period& first = periods[1];
  const Period& last = periods.back();
  if (last.heapClear > first.heapClear + kHeapGrowth) {
    complaints << QStringLiteral("The heap grew by %1 MiB beyond the text.")
                      .arg(MiB(last.heapClear - first.heapClear));
  }
  if (last.residentClear > first.residentClear + kResidentGrowth) {
    complaints << QStringLiteral("The memory grew by %1 MiB beyond the text.")
                      .arg(MiB(last.residentClear - first.residentClear));
  }
  if (last.descriptors > first.descriptors + kDescriptorsOnTheirWay) {
    complaints << QStringLiteral("The descriptors grew from %1 to %2.")
                      .arg(first.descriptors)
                      .arg(last.descriptors);
  }
  if (WorkPerLine(last) > kDearest * WorkPerLine(first)) {
    complaints << QStringLiteral("A line costs %1 ms of work, at first %2 ms.")
                      .arg(WorkPerLine(last), 0, 'f', 1)
                      .arg(WorkPerLine(first), 0, 'f', 1);
  }
  if (last.worstOwnAnswer > 2 * first.worstOwnAnswer + kAnswerNoise) {
    complaints << QStringLiteral("The window answers in %1 ms at worst, at first in %2 ms.")
                      .arg(last.worstOwnAnswer)
                      .arg(first.worstOwnAnswer);
  }
  return complaints;
}

}  // namespace verlume::soak
