// What a copy reports for each period, and the check of it.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

namespace verlume::soak {

struct Period {
  std::int64_t lines = 0;  // of both sides, as the pane showed them
  std::int64_t milliseconds = 0;
  std::int64_t processor = 0;       // ms of processor time
  std::int64_t characters = 0;      // in the dialogue pane
  std::int64_t residentFull = 0;    // bytes, before the dialogue is cleared
  std::int64_t residentClear = 0;   // bytes, afterwards
  std::int64_t heapClear = 0;       // bytes handed out, afterwards
  std::int64_t descriptors = 0;     // afterwards
  std::int64_t worstAnswer = 0;     // ms that an event waited
  std::int64_t worstOwnAnswer = 0;  // the same without the time of other processes
};

// The line that a copy prints for the supervisor.
QString PeriodLine(const Period& period);
// False when the line is not one of these.
bool ParsePeriod(const QString& line, Period& period);

QString TableHead();
QString TableRow(const QString& copy, std::size_t number, const Period& period);

// The faults that the periods of one copy show, as sentences. The last period is compared with the
// second, since fonts and languages are loaded in the first. Speed is judged by the processor time
// for each line, so that other work on the machine does not matter.
QStringList Complaints(const std::vector<Period>& periods);

}  // namespace verlume::soak
