// Goes through the program as a user would and takes a picture of every window and box that comes
// up: the main window, each menu, what each menu entry opens, and the boxes that only a state or a
// failure brings. A box is answered by Escape once its picture is taken.
#pragma once

#include <QObject>
#include <QSet>
#include <QTcpSocket>
#include <QTimer>
#include <functional>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;

namespace verlume::gallery {

class Photographer : public QObject {
 public:
  // The pictures are FOLDER/NAME.png; the folder exists.
  explicit Photographer(const QString& folder);

 private:
  struct Scene {
    QString name;
    std::function<void()> enter;
  };

  void Step();
  void Begin();
  void AddMenu(QMenu* menu);
  void AddEntry(QAction* entry);
  void AddCompletions(const QString& name, const QString& word);
  void AddTyped(const QString& name, const QString& line);
  bool TakeModal();
  void TakeWindows();
  void Take(QWidget* window, const QString& name);
  void Type(const QString& line);
  // Without Enter; gives the command pane.
  QWidget* TypeAfresh(const QString& text);

  QString folder_;
  QMainWindow* main_ = nullptr;
  std::vector<Scene> scenes_;
  std::size_t next_ = 0;
  QString scene_ = QStringLiteral("start");
  int picturesOfScene_ = 0;
  int idleSteps_ = 0;
  QWidget* taken_ = nullptr;  // the box whose picture is taken already
  QSet<QWidget*> known_;      // windows that are not modal and have their picture
  QTcpSocket caller_;
  QTimer timer_;
};

}  // namespace verlume::gallery
