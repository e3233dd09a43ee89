// The topics visited in the help window, for back and forward, with the position at which each was
// left.
#pragma once

#include <QString>
#include <vector>

namespace verlume::qt {

class HelpHistory {
 public:
  struct Visit {
    QString topicId;
    int scroll = 0;
  };

  // Adds a visit after the current one; forward visits are dropped.
  void Go(const QString& topicId) {
    if (!visits_.empty()) visits_.resize(now_ + 1);
    visits_.push_back({topicId, 0});
    now_ = visits_.size() - 1;
  }

  bool CanGoBack() const { return now_ > 0; }
  bool CanGoForward() const { return now_ + 1 < visits_.size(); }
  void GoBack() { now_ -= CanGoBack() ? 1 : 0; }
  void GoForward() { now_ += CanGoForward() ? 1 : 0; }

  // Null before the first visit.
  Visit* Now() { return visits_.empty() ? nullptr : &visits_[now_]; }

 private:
  std::vector<Visit> visits_;
  std::size_t now_ = 0;
};

}  // namespace verlume::qt
