#include "platform_qt/windows/main_window_form.h"

#include <QCheckBox>
#include <QFrame>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "platform_qt/controls/key_codes.h"
#include "platform_qt/windows/find_bar.h"

// Must be outside any namespace. Without this call, Qt does not find the resources of a static
// library.
static void InitResources() {
  Q_INIT_RESOURCE(icons);
}

namespace verlume::qt {
namespace {

constexpr QSize kUsualSize(900, 640);

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 128, 256}) {
    icon.addFile(QStringLiteral(":/icons/hicolor/%1x%1/apps/verlume.png").arg(size),
                 QSize(size, size));
  }
  return icon;
}

QFrame* NewFrame(QWidget* parent) {
  auto* frame = new QFrame(parent);
  frame->setFrameShape(QFrame::StyledPanel);
  return frame;
}

}  // namespace

MainForm::MainForm()
    : area_(new QWidget(this)),
      layout_(new ProportionalLayout(area_, kDesignSize)),
      findBar_(NewFindBar(area_)),
      completions_(new CompletionFrame(area_)),
      newLines_(new NewLinesFrame(area_)) {
  InitResources();
  setObjectName(QStringLiteral("frmMain"));
  setWindowIcon(ProgramIcon());
  setCentralWidget(area_);
  BuildMenus();
  BuildControls();
  PlaceProgressBar();
  RelateCaptions();
  resize(kUsualSize.boundedTo(screen()->availableSize()));
}

void MainForm::BuildMenus() {
  for (const MenuEntryDesign& design : kMainMenuDesign) {
    auto* menu = Find<QMenu>(design.menu);
    if (!menu) {
      menu = menuBar()->addMenu(QString());
      menu->setObjectName(QLatin1String(design.menu));
      menu->setToolTipsVisible(true);
    }
    if (design.separatorBefore) menu->addSeparator();
    QAction* entry = menu->addAction(QString());
    entry->setObjectName(QLatin1String(design.entry));
    entry->setCheckable(design.tick);
    entry->setShortcut(QKeySequence(QLatin1String(design.keys)));
    // Some desktops move entries with certain captions into a menu of their own; keep them here.
    entry->setMenuRole(QAction::NoRole);
  }
  Find<QAction>("mnuHelpDetailed")->setShortcut(QKeySequence::HelpContents);
}

void MainForm::BuildControls() {
  for (const ControlDesign& design : kMainWindowDesign) {
    if (design.kind == ControlKind::Pane) continue;
    QWidget* widget = Build(design);
    widget->setObjectName(QLatin1String(design.name));
    layout_->Place(widget, design.place);
  }
}

QWidget* MainForm::Build(const ControlDesign& design) {
  switch (design.kind) {
    case ControlKind::Frame:
      return NewFrame(area_);
    case ControlKind::LampFrame: {
      QFrame* frame = NewFrame(area_);
      auto* lamp = new LampWidget(frame);
      lamp->setObjectName(QStringLiteral("shpStatus"));
      auto* inside = new QVBoxLayout(frame);
      inside->setContentsMargins(0, 0, 0, 0);
      inside->addWidget(lamp);
      return frame;
    }
    case ControlKind::CheckBox: {
      auto* box = new QCheckBox(area_);
      // A click, perhaps for context help, leaves the focus where the user types.
      box->setFocusPolicy(Qt::TabFocus);
      return box;
    }
    case ControlKind::Picture: {
      auto* picture = new PictureWidget(area_);
      picture->SetIcon(windowIcon());
      return picture;
    }
    default:
      return BuildLabel(design);
  }
}

QWidget* MainForm::BuildLabel(const ControlDesign& design) {
  auto* label = new ElidedLabel(area_);
  label->SetMuted(design.kind == ControlKind::Caption);
  label->setWordWrap(design.kind == ControlKind::Wrapped);
  if (design.kind == ControlKind::Swatch) label->setFrameShape(QFrame::Box);
  return label;
}

void MainForm::PlaceProgressBar() {
  auto* bar = new QProgressBar(area_);
  bar->setObjectName(QStringLiteral("prgStatus"));
  bar->setFixedHeight(fontMetrics().height() / 2);
  layout_->PlaceFoot(Find<QWidget>("lblStatus"), bar);
}

// Assistive tools read a value together with its caption.
void MainForm::RelateCaptions() {
  const QString ending = QStringLiteral("Caption");
  for (ElidedLabel* label : findChildren<ElidedLabel*>()) {
    const QString name = label->objectName();
    if (!name.endsWith(ending)) continue;
    label->setBuddy(findChild<QWidget*>(name.chopped(ending.size())));
  }
}

// If the keyboard has a Latin layout beside the Greek one, Qt finds the Latin letter of a key
// itself. If not, no shortcut takes the key, and it arrives here. A second shortcut for the Greek
// letter is no solution: with both layouts, Qt considers the two ambiguous.
void MainForm::keyPressEvent(QKeyEvent* event) {
  if (const Qt::Key key = LatinKeyOf(*event); key != event->key()) {
    const QKeyCombination latin(event->modifiers(), key);
    for (QAction* entry : findChildren<QAction*>()) {
      if (entry->shortcut() == QKeySequence(latin)) return entry->trigger();
    }
  }
  QMainWindow::keyPressEvent(event);
}

void MainForm::PlacePane(QWidget* pane, const char* name) {
  pane->setObjectName(QLatin1String(name));
  const auto* design = std::find_if(
      kMainWindowDesign.begin(), kMainWindowDesign.end(),
      [name](const ControlDesign& one) { return QLatin1String(one.name) == QLatin1String(name); });
  layout_->Place(pane, design->place);
}

}  // namespace verlume::qt
