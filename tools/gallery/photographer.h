// Goes through the program as a user would and takes a picture of every window and box that comes
// up: the main window, each menu, what each menu entry opens, and the boxes that only a state or a
// failure brings. Once its picture is taken, a box is answered as the scene says, or by Escape.
#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>
#include <functional>
#include <vector>

#include "caller.h"
#include "macro_tour.h"
#include "platform/platform.h"

class QAction;
class QMainWindow;
class QMenu;

namespace verlume::gallery {

class Photographer : public QObject {
 public:
  // The pictures are FOLDER/NAME.png; the folder must exist. With a name for the start, a picture
  // is taken only of what opens at the start of the program.
  Photographer(Platform& platform, const QString& folder, const QString& start);

 private:
  struct Scene {
    QString name;
    std::function<void()> enter;
    Answers answers = {};  // to the boxes that the scene opens
  };

  void Step();
  void Begin();
  void AddMenu(QMenu* menu);
  void AddEntry(QAction* entry);
  void AddCompletions(const QString& name, const QString& word);
  void AddTyped(const QString& name, const QString& line);
  void AddSaving(const QString& name, Answers answers);
  void BeginScene(const QString& name, const Answers& answers);
  bool TakeModal();
  void TakeBox(QWidget* box);
  void TakeEditor(QWidget* editor);
  void TakeWindows();
  void Take(QWidget* window, const QString& name);
  void Save(const QPixmap& picture, const QString& name);
  // Takes a picture of the main window with the tool tip of one of its controls.
  void TakeToolTip(const QString& control);
  void AddScenes();
  void AddCall();
  // Does not press Enter; returns the command pane.
  QWidget* Type(const QString& text);
  void Enter(const QString& line);

  Platform& platform_;
  QString folder_;
  QMainWindow* main_ = nullptr;
  std::vector<Scene> scenes_;
  std::size_t next_ = 0;
  QString scene_;
  bool onlyStart_;
  Answers answers_;       // of the scene
  int boxesOfScene_ = 0;  // that have been answered
  const std::vector<MacroStep> tour_ = MacroTour();
  std::size_t step_ = 0;  // index of the next step of the tour
  int idleSteps_ = 0;
  bool isBusy_ = false;       // with a scene, which may handle events
  QWidget* taken_ = nullptr;  // the box whose picture has been taken
  QSet<QWidget*> known_;      // modeless windows whose pictures have been taken
  Caller caller_;
  QTimer timer_;
};

}  // namespace verlume::gallery
