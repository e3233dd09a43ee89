#include "platform_qt/windows/window_memory.h"

#include <QEvent>
#include <QFile>
#include <QSaveFile>

namespace verlume::qt {

QtWindowMemory::QtWindowMemory(QWidget* form, const QString& file)
    : QObject(form), form_(form), file_(file) {
  Restore();
  form->installEventFilter(this);
}

void QtWindowMemory::Restore() {
  // The file always has this length; anything else is not such a file.
  const qsizetype length = form_->saveGeometry().size();
  QFile file(file_);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QByteArray geometry = file.read(length + 1);
  if (geometry.size() == length) form_->restoreGeometry(geometry);
}

void QtWindowMemory::Keep() {
  QSaveFile file(file_);
  if (!file.open(QIODevice::WriteOnly)) return;
  file.write(form_->saveGeometry());
  file.commit();
}

bool QtWindowMemory::eventFilter(QObject* watched, QEvent* event) {
  // A spontaneous Hide is a minimised window, which comes back.
  if (watched == form_ && event->type() == QEvent::Hide && !event->spontaneous()) Keep();
  return false;
}

}  // namespace verlume::qt
