// Goes through the program as a user would and takes a picture of every window and box that comes
// up: the main window, each menu, what each menu entry opens, and the boxes that only a state or a
// failure brings. A box is answered once its picture is taken, by Escape where nothing else is
// said.
#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>
#include <functional>
#include <vector>

#include "caller.h"
#include "macro_tour.h"

class QAction;
class QMainWindow;
class QMenu;

namespace verlume::gallery {

class Photographer : public QObject {
 public:
  // The pictures are FOLDER/NAME.png; the folder exists. With a name for the start, only what comes
  // up then is taken.
  Photographer(const QString& folder, const QString& start);

 private:
  struct Scene {
    QString name;
    std::function<void()> enter;
    Answers answers = {};  // to the boxes that come of it
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
  // The main window, and above it the tool tip of one of its controls.
  void TakeToolTip(const QString& control);
  void AddScenes();
  void AddCall();
  // Without Enter; gives the command pane.
  QWidget* Type(const QString& text);
  void Enter(const QString& line);

  QString folder_;
  QMainWindow* main_ = nullptr;
  std::vector<Scene> scenes_;
  std::size_t next_ = 0;
  QString scene_;
  bool onlyStart_;
  Answers answers_;       // of the scene
  int boxesOfScene_ = 0;  // that have been answered
  const std::vector<MacroStep> tour_ = MacroTour();
  std::size_t step_ = 0;  // of the tour, the next one
  int idleSteps_ = 0;
  bool isBusy_ = false;       // with a scene, which may let events through
  QWidget* taken_ = nullptr;  // the box whose picture is taken already
  QSet<QWidget*> known_;      // windows that are not modal and have their picture
  Caller caller_;
  QTimer timer_;
};

}  // namespace verlume::gallery
