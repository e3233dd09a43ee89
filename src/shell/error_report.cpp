#include "shell/error_report.h"

#include <exception>
#include <string>
#include <utility>

#include "platform/run_time_failure.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kErrorText = {
    u"Error condition %1 with the description '%2' has occured."
    u"\r\n\r\n"
    u"The application cannot perform the requested operation."
    u"\r\n\r\n"
    u"Do you want to shut down the application and return "
    u"to the Windows environment?",
    u"Παρουσιάσθηκε το σφάλμα με αριθμό %1 και περιγραφή «%2»."
    u"\r\n\r\n"
    u"Η εφαρμογή δεν μπορεί να εκτελέσει την εργασία "
    u"που ζητήσατε."
    u"\r\n\r\n"
    u"Θέλετε να διακοπεί η λειτουργία της εφαρμογής και "
    u"να επιστρέψετε στο περιβάλλον των Windows;"};

// What the exception that is being handled tells of itself.
std::string HandledException() {
  try {
    throw;
  } catch (const RunTimeFailure& failure) {
    // The descriptions are ASCII.
    return "error " + std::to_string(static_cast<std::int32_t>(failure.number)) + ", " +
           std::string(failure.description.begin(), failure.description.end());
  } catch (const std::exception& exception) {
    return std::string("exception, ") + exception.what();
  } catch (...) {
    return "exception of an unknown type";
  }
}

}  // namespace

ErrorReport::ErrorReport(const AppState& state, Platform& platform,
                         std::function<void()> resetConnection, std::function<void()> unload)
    : state_(state),
      platform_(platform),
      resetConnection_(std::move(resetConnection)),
      unload_(std::move(unload)) {}

bool ErrorReport::Guard(Procedure procedure, const std::function<void()>& body) {
  try {
    body();
    return true;
  } catch (const RunTimeFailure& failure) {
    if (failure.number == FailureNumber::Cancelled) return false;
    LogException(procedure);
    Report(static_cast<std::int32_t>(failure.number), failure.description, procedure);
  } catch (...) {
    LogException(procedure);
    const RunTimeFailure internal(FailureNumber::InternalError);
    Report(static_cast<std::int32_t>(internal.number), internal.description, procedure);
  }
  return false;
}

void ErrorReport::LogException(Procedure procedure) {
  const std::string number = std::to_string(static_cast<int>(procedure));
  platform_.application.LogError("procedure " + number + " failed: " + HandledException());
}

void ErrorReport::Report(std::int32_t errorNumber, std::u16string_view description,
                         Procedure procedure) {
  const std::u16string text =
      kErrorText.Fill(state_.IsGreek, {DecimalText(errorNumber), description});
  const std::u16string title =
      state_.Title + u", " + DecimalText(static_cast<int>(procedure)) + u".";
  resetConnection_();
  Message box = Question(text, title, Answer::No);
  box.unexpected = true;
  if (platform_.dialogs.ShowMessage(box) == Answer::Yes) unload_();
}

}  // namespace verlume
