// What one copy reports of each minute, and what may be wrong with it.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

namespace verlume::soak {

struct Period {
  std::int64_t lines = 0;  // of both sides, as the pane showed them
  std::int64_t milliseconds = 0;
  std::int64_t processor = 0;       // ms that the process worked
  std::int64_t characters = 0;      // of the text shown
  std::int64_t residentFull = 0;    // bytes, before the dialogue is cleared
  std::int64_t residentClear = 0;   // bytes, afterwards
  std::int64_t heapClear = 0;       // bytes handed out, afterwards
  std::int64_t descriptors = 0;     // afterwards
  std::int64_t worstAnswer = 0;     // ms that an event waited
  std::int64_t worstOwnAnswer = 0;  // the same without other processes' turns
};

// What a copy prints for the supervisor.
QString PeriodLine(const Period& period);
// False when the line is no such line.
bool ParsePeriod(const QString& line, Period& period);

QString TableHead();
QString TableRow(const QString& copy, std::size_t number, const Period& period);

// What the periods of one copy show to be wrong, in sentences: the last one is compared with the
// second, for in the first fonts and languages are loaded. Speed is judged by the work that a line
// costs, so that it does not matter what else the machine does.
QStringList Complaints(const std::vector<Period>& periods);

}  // namespace verlume::soak
