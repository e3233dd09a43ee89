// The topics visited in the help window: back, forward, and where each was left.
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

  // A visit after the one of now; those that lay ahead are forgotten.
  void Go(const QString& topicId) {
    if (!visits_.empty()) visits_.resize(now_ + 1);
    visits_.push_back({topicId, 0});
    now_ = visits_.size() - 1;
  }

  bool CanGoBack() const { return now_ > 0; }
  bool CanGoForward() const { return now_ + 1 < visits_.size(); }
  void GoBack() { now_ -= CanGoBack() ? 1 : 0; }
  void GoForward() { now_ += CanGoForward() ? 1 : 0; }

  // Null before the first.
  Visit* Now() { return visits_.empty() ? nullptr : &visits_[now_]; }

 private:
  std::vector<Visit> visits_;
  std::size_t now_ = 0;
};

}  // namespace verlume::qt
