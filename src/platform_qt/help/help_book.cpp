#include "platform_qt/help/help_book.h"

#include <QFile>

#include "platform_qt/help/help_reader.h"
#include "platform_qt/help/help_texts.h"

namespace verlume::qt {

HelpBook HelpBook::Load(const QString& path, bool isGreek) {
  HelpBook book;
  book.path_ = path;
  book.isGreek_ = isGreek;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return book;
  const QByteArray bytes = file.read(kMaximumSize + 1);
  if (bytes.size() > kMaximumSize) {
    book.problem_ = Problem::TooLarge;
    return book;
  }
  HelpReader reader(bytes);
  book.problem_ = reader.Read() ? Problem::None : Problem::Damaged;
  book.problemLine_ = reader.Line();
  if (book.problem_ == Problem::None) {
    book.chapters_ = reader.TakeChapters();
    book.controls_ = reader.TakeControls();
  }
  return book;
}

QString HelpBook::ProblemText() const {
  switch (problem_) {
    case Problem::None:
      return {};
    case Problem::Missing:
      return kHelpMissing.In(isGreek_).arg(path_);
    case Problem::TooLarge:
      return kHelpTooLarge.In(isGreek_).arg(path_);
    case Problem::Damaged:
      break;
  }
  return kHelpDamaged.In(isGreek_).arg(path_, QString::number(problemLine_));
}

const HelpTopic* HelpBook::Topic(const QString& id) const {
  for (const HelpChapter& chapter : chapters_) {
    for (const HelpTopic& topic : chapter.topics) {
      if (topic.id == id) return &topic;
    }
  }
  return nullptr;
}

const HelpControl* HelpBook::Control(const QString& name) const {
  for (const HelpControl& control : controls_) {
    if (control.names.contains(name)) return &control;
  }
  return nullptr;
}

HelpPlace HelpBook::Find(const QString& id) const {
  if (Topic(id)) return {id, {}};
  for (const HelpChapter& chapter : chapters_) {
    if (chapter.id == id) return {chapter.topics.front().id, {}};
  }
  const HelpControl* control = Control(id);
  return control ? HelpPlace{control->topicId, control->names.front()} : HelpPlace();
}

}  // namespace verlume::qt
