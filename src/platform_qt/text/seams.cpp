#include "platform_qt/text/seams.h"

#include <algorithm>

namespace verlume::qt {
namespace {

constexpr int kSeam = 1;
constexpr int kNoSeam = -1;

}  // namespace

bool BeginsAtSeam(const QTextBlock& block, Lines lines) {
  return lines == Lines::Single || block.userState() == kSeam;
}

void MarkSeam(QTextBlock block) {
  block.setUserState(kSeam);
}

Seams::Seams(QTextDocument& document, Lines lines) : document_(document), lines_(lines) {
  connect(&document, &QTextDocument::contentsChange, this, &Seams::NoteChange);
}

std::size_t Seams::TextPosition(int position) const {
  const auto behind = std::upper_bound(places_.begin(), places_.end(), position);
  return static_cast<std::size_t>(position - static_cast<int>(behind - places_.begin()));
}

int Seams::DocumentPosition(std::size_t position) const {
  // Each seam takes up one position in the document, and none in the text.
  std::size_t before = 0;
  std::size_t notBefore = places_.size();
  while (before < notBefore) {
    const std::size_t middle = (before + notBefore) / 2;
    const bool isBefore = static_cast<std::size_t>(places_[middle]) < position + middle + 1;
    (isBefore ? before : notBefore) = isBefore ? middle + 1 : middle;
  }
  return static_cast<int>(position + before);
}

// When two blocks are joined, the one that Qt keeps may be the second, and so its mark.
void Seams::KeepMark(QTextBlock block) const {
  const bool isSeam = std::binary_search(places_.begin(), places_.end(), block.position());
  block.setUserState(isSeam ? kSeam : kNoSeam);
}

void Seams::NoteChange(int position, int removed, int added) {
  const auto first = std::upper_bound(places_.begin(), places_.end(), position);
  const auto last = std::upper_bound(first, places_.end(), position + removed);
  for (auto place = last; place != places_.end(); ++place) *place += added - removed;
  if (removed > 0) KeepMark(document_.findBlock(position));
  std::vector<int> fresh;
  QTextBlock block = document_.findBlock(position).next();
  for (; block.isValid() && block.position() <= position + added; block = block.next()) {
    if (BeginsAtSeam(block, lines_)) fresh.push_back(block.position());
  }
  places_.insert(places_.erase(first, last), fresh.begin(), fresh.end());
}

}  // namespace verlume::qt
