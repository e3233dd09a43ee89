#include "platform_qt/windows/window_memory.h"

#include <QEvent>
#include <QFile>
#include <QSaveFile>

namespace verlume::qt {
namespace {

// Behind the place: a byte for the status panel, two for the zoom.
constexpr qsizetype kViewLength = 3;

}  // namespace

QtWindowMemory::QtWindowMemory(QtMainWindow& window, const QString& file)
    : QObject(&window.form()), view_(window.View()), form_(&window.form()), file_(file) {
  Restore();
  form_->installEventFilter(this);
}

void QtWindowMemory::Restore() {
  // The place always has this length; a file of another length is not such a file. Files of earlier
  // versions end with the place.
  const qsizetype length = form_->saveGeometry().size();
  QFile file(file_);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QByteArray kept = file.read(length + kViewLength + 1);
  if (kept.size() != length && kept.size() != length + kViewLength) return;
  form_->restoreGeometry(kept.first(length));
  if (kept.size() > length) RestoreView(kept.last(kViewLength));
}

QByteArray QtWindowMemory::View() const {
  const int zoom = view_.rtbData.Zoom();
  return QByteArray{}
      .append(view_.fraPanel.Visible() ? '\1' : '\0')
      .append(char(zoom & 0xFF))
      .append(char(zoom >> 8));
}

void QtWindowMemory::RestoreView(const QByteArray& view) {
  view_.fraPanel.SetVisible(view[0] != '\0');
  const int zoom = uchar(view[1]) | uchar(view[2]) << 8;
  if (zoom < kLeastZoom || zoom > kGreatestZoom) return;
  for (RichTextBox* pane : {&view_.rtbData, &view_.rtbCommands}) pane->SetZoom(zoom);
}

void QtWindowMemory::Keep() {
  QSaveFile file(file_);
  if (!file.open(QIODevice::WriteOnly)) return;
  file.write(form_->saveGeometry());
  file.write(View());
  file.commit();
}

bool QtWindowMemory::eventFilter(QObject* watched, QEvent* event) {
  // A spontaneous Hide is a minimised window, which comes back.
  if (watched == form_ && event->type() == QEvent::Hide && !event->spontaneous()) Keep();
  return false;
}

}  // namespace verlume::qt
