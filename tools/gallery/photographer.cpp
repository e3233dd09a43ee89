#include "photographer.h"

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <utility>

#include "private_scenes.h"
#include "reach_scenes.h"

namespace verlume::gallery {
namespace {

constexpr int kStepMilliseconds = 150;
constexpr int kStepsToSettle = 4;  // longer than a box that opens by itself ignores keys

// Entries that only switch something on or off, or end the program.
bool OpensABox(const QAction& entry) {
  const bool asksFirst = entry.objectName() == QLatin1String("mnuFileLogRecord");
  return !entry.isSeparator() && (!entry.isCheckable() || asksFirst) &&
         entry.objectName() != QLatin1String("mnuFileExit");
}

}  // namespace

Photographer::Photographer(Platform& platform, const QString& folder, const QString& start)
    : platform_(platform),
      folder_(folder),
      scene_(start.isEmpty() ? QStringLiteral("start") : start),
      onlyStart_(!start.isEmpty()) {
  connect(&timer_, &QTimer::timeout, this, &Photographer::Step);
  timer_.start(kStepMilliseconds);
}

void Photographer::Step() {
  if (++idleSteps_ < kStepsToSettle) return;
  idleSteps_ = 0;
  if (TakeModal()) return;
  if (isBusy_) return;
  if (!main_) return Begin();
  TakeWindows();
  if (next_ == scenes_.size()) return timer_.stop();
  BeginScene(scenes_[next_].name, scenes_[next_].answers);
  isBusy_ = true;
  // Queued: a scene may open a box, and the timer does not fire again before this function returns.
  QMetaObject::invokeMethod(
      this,
      [this, &scene = scenes_[next_++]] {
        scene.enter();
        isBusy_ = false;
      },
      Qt::QueuedConnection);
}

void Photographer::BeginScene(const QString& name, const Answers& answers) {
  scene_ = name;
  answers_ = answers;
  boxesOfScene_ = 0;
}

void Photographer::Begin() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String("frmMain") && window->isVisible()) {
      main_ = qobject_cast<QMainWindow*>(window);
    }
  }
  if (!main_) return;
  known_.insert(main_);
  if (!onlyStart_) AddScenes();
  scenes_.push_back({QStringLiteral("end"), [] { QApplication::exit(); }});
}

void Photographer::AddScenes() {
  scenes_.push_back({QStringLiteral("main-window"), [this] {
                       Take(main_, scene_);
                       const QSize usual = main_->size();
                       main_->resize(main_->minimumSizeHint());
                       QApplication::processEvents();
                       Take(main_, QStringLiteral("main-window-smallest"));
                       main_->resize(usual);
                     }});
  AddTyped(QStringLiteral("dialogue"), QStringLiteral("Good morning. Καλημέρα."));
  for (QAction* menu : main_->menuBar()->actions()) AddMenu(menu->menu());
  for (QAction* menu : main_->menuBar()->actions()) {
    for (QAction* entry : menu->menu()->actions()) {
      if (OpensABox(*entry)) AddEntry(entry);
    }
  }
  scenes_.push_back({QStringLiteral("find-bar"), [this] {
                       Enter(QStringLiteral("Good morning. Καλημέρα."));
                       auto* field = main_->findChild<QWidget*>(QStringLiteral("txtFind"));
                       for (const QChar character : QStringLiteral("ΚΑΛΗΜΕΡΑ")) {
                         Press(field, 0, character);
                       }
                       QApplication::processEvents();
                       Take(main_, scene_);
                       main_->findChild<QPushButton*>(QStringLiteral("cmdFindClose"))->click();
                     }});
  AddCompletions(QStringLiteral("completions"), QStringLiteral("/"));
  AddCompletions(QStringLiteral("completions-macro"), QStringLiteral("/h"));
  AddSaving(QStringLiteral("save-macro"), {Escape(), Yes()});
  AddSaving(QStringLiteral("save-macro-existing"),
            {FillIn(QStringLiteral("goodbye")), Escape(), Escape(), Yes()});
  AddTyped(QStringLiteral("wait-wrong-port"), QStringLiteral("/WAIT nowhere"));
  AddTyped(QStringLiteral("call-wrong-port"), QStringLiteral("/CALL localhost nowhere"));
  AddTyped(QStringLiteral("error-report"), QStringLiteral("/CALL localhost 70000"));
  AddTyped(QStringLiteral("size-out-of-range"), QStringLiteral("/SIZE 12"));
  AddTyped(QStringLiteral("nickname-too-long"), QStringLiteral("/NICK ") + QString(40, u'n'));
  AddTyped(QStringLiteral("waiting"), QStringLiteral("/WAIT"));
  AddTyped(QStringLiteral("exit-while-waiting"), QStringLiteral("/EXIT"));
  AddTyped(QStringLiteral("call-while-waiting"), QStringLiteral("/CALL localhost 1"));
  const auto takeMain = [this] {
    QApplication::processEvents();
    Take(main_, scene_);
  };
  for (PrivateScene& scene : PrivateScenes(platform_, takeMain)) {
    scenes_.push_back({scene.name, std::move(scene.enter)});
  }
  for (ReachScene& scene : ReachScenes(platform_, takeMain)) {
    scenes_.push_back({scene.name, std::move(scene.enter)});
  }
  AddCall();
}

// Lines that the caller's machine does not accept, and what the program says of them afterwards.
void Photographer::AddCall() {
  constexpr int kMoreThanItTakes = 4000;  // characters
  scenes_.push_back({QStringLiteral("incoming-call"),
                     [this] {
                       const auto* port = main_->findChild<QLabel*>(QStringLiteral("lblLocalPort"));
                       caller_.Call(static_cast<quint16>(port->text().toInt()));
                     },
                     {Yes()}});
  scenes_.push_back({QStringLiteral("lines-waiting"), [this] {
                       QWidget* commands = Type({});
                       qobject_cast<QPlainTextEdit*>(commands)->insertPlainText(
                           QString(kMoreThanItTakes, u'n'));
                       Press(commands, Qt::Key_Return, QStringLiteral("\r"));
                       Enter(QStringLiteral("/CLEARDIALOGUE"));
                       Enter(QStringLiteral("Good morning. Καλημέρα."));
                       QApplication::processEvents();
                       Take(main_, scene_);
                     }});
  scenes_.push_back({QStringLiteral("caller-gone"), [this] { caller_.Leave(); }});
  scenes_.push_back(
      {QStringLiteral("lines-undelivered"), [this] { TakeToolTip(QStringLiteral("lblStatus")); }});
}

void Photographer::AddMenu(QMenu* menu) {
  scenes_.push_back({menu->objectName(), [this, menu] {
                       menu->popup(main_->geometry().center());
                       QApplication::processEvents();
                       Take(menu, scene_);
                       menu->hide();
                     }});
}

void Photographer::AddEntry(QAction* entry) {
  scenes_.push_back({entry->objectName(), [entry] { entry->trigger(); }});
}

void Photographer::AddCompletions(const QString& name, const QString& word) {
  scenes_.push_back({name, [this, word] {
                       QWidget* commands = Type(word);
                       Press(commands, Qt::Key_Down);
                       QApplication::processEvents();
                       Take(main_, scene_);
                       Press(commands, Qt::Key_Escape);
                     }});
}

void Photographer::AddTyped(const QString& name, const QString& line) {
  scenes_.push_back({name, [this, line] { Enter(line); }});
}

void Photographer::AddSaving(const QString& name, Answers answers) {
  scenes_.push_back({name,
                     [this] {
                       Type(QStringLiteral("Hello, $r!"));
                       main_->findChild<QAction*>(QStringLiteral("mnuToolsSaveMacro"))->trigger();
                     },
                     std::move(answers)});
}

QWidget* Photographer::Type(const QString& text) {
  auto* commands = main_->findChild<QPlainTextEdit*>(QStringLiteral("rtbCommands"));
  Press(commands, Qt::Key_Escape);  // a refused command stays in the pane
  for (const QChar character : text) Press(commands, 0, character);
  return commands;
}

void Photographer::Enter(const QString& line) {
  Press(Type(line), Qt::Key_Return, QStringLiteral("\r"));
}

bool Photographer::TakeModal() {
  QWidget* box = QApplication::activeModalWidget();
  if (!box) {
    taken_ = nullptr;
  } else if (box->objectName() == QLatin1String("frmMacros")) {
    TakeEditor(box);
  } else {
    TakeBox(box);
  }
  return box;
}

// Takes the picture of a box, and answers the box one step later.
void Photographer::TakeBox(QWidget* box) {
  if (box != taken_) {
    taken_ = box;
    const QString number = boxesOfScene_ == 0 ? QString() : QStringLiteral("-%1");
    Take(box, scene_ + (number.isEmpty() ? number : number.arg(boxesOfScene_ + 1)));
    return;
  }
  taken_ = nullptr;
  const auto turn = static_cast<std::size_t>(boxesOfScene_++);
  (turn < answers_.size() ? answers_[turn] : Escape())(box);
}

void Photographer::TakeEditor(QWidget* editor) {
  taken_ = nullptr;
  if (step_ == 0 || tour_[step_ - 1].showsTheEditor) Take(editor, scene_);
  if (step_ == tour_.size()) step_ = 0;
  const MacroStep& step = tour_[step_++];
  BeginScene(step.name, step.answers);
  QMetaObject::invokeMethod(
      this, [&step, editor] { step.perform(editor); }, Qt::QueuedConnection);
}

// Takes a picture of every window that is open beside the main one, and closes it.
void Photographer::TakeWindows() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || known_.contains(window) || window->windowType() == Qt::ToolTip) {
      continue;
    }
    Take(window, scene_);
    known_.insert(window);
    window->close();
  }
}

void Photographer::Take(QWidget* window, const QString& name) {
  Save(window->grab(), name);
}

void Photographer::Save(const QPixmap& picture, const QString& name) {
  constexpr int kSmallest = 0;
  const QImage opaque = picture.toImage().convertToFormat(QImage::Format_RGB888);
  opaque.save(folder_ + u'/' + name + QStringLiteral(".png"), "PNG", kSmallest);
}

void Photographer::TakeToolTip(const QString& control) {
  auto* owner = main_->findChild<QWidget*>(control);
  const QPoint middle = owner->rect().center();
  QHelpEvent wish(QEvent::ToolTip, middle, owner->mapToGlobal(middle));
  QApplication::sendEvent(owner, &wish);
  QApplication::processEvents();
  QPixmap picture = main_->grab();
  QPainter painter(&picture);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || window->windowType() != Qt::ToolTip) continue;
    painter.drawPixmap(main_->mapFromGlobal(window->pos()), window->grab());
  }
  painter.end();
  Save(picture, scene_);
}

}  // namespace verlume::gallery
