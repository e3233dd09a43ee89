#include "platform_qt/windows/main_window_form.h"

#include <QAccessible>
#include <QApplication>
#include <QFrame>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "platform_qt/controls/key_codes.h"
#include "platform_qt/controls/swatch_label.h"
#include "platform_qt/controls/toggle_box.h"
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

QFrame* NewHairline(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

QFrame* NewLampFrame(QWidget* parent) {
  auto* frame = new QFrame(parent);
  auto* lamp = new LampWidget(frame);
  lamp->setObjectName(QStringLiteral("shpStatus"));
  auto* inside = new QVBoxLayout(frame);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(lamp);
  return frame;
}

ToggleBox* NewToggleBox(QWidget* parent, const char* name) {
  auto* box = new ToggleBox(parent);
  QFont font = box->font();
  font.setBold(qstrcmp(name, "chkBold") == 0);
  font.setItalic(qstrcmp(name, "chkItalics") == 0);
  font.setUnderline(qstrcmp(name, "chkUnderline") == 0);
  box->setFont(font);
  return box;
}

QPushButton* NewButton(QWidget* parent) {
  auto* button = new QPushButton(parent);
  // A click leaves the focus where the user types.
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

// A guess at the room that the window's title and edges will take: they come later, and from the
// desktop.
QSize FrameSize() {
  const QStyle* style = QApplication::style();
  const int edge = style->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  return {2 * edge, style->pixelMetric(QStyle::PM_TitleBarHeight) + edge};
}

// The rows of the status panel are quiet beside the dialogue.
QFont QuietFont(QFont font) {
  constexpr qreal kPart = 0.9;
  font.setPointSizeF(kPart * font.pointSizeF());
  return font;
}

}  // namespace

MainForm::MainForm()
    : area_(new QWidget(this)),
      layout_(new ProportionalLayout(area_, kDesignSize)),
      findBar_(NewFindBar(area_)),
      completions_(new CompletionFrame(area_)),
      hint_(new PaneHint(area_)),
      newLines_(new NewLinesFrame(area_)) {
  InitResources();
  setObjectName(QStringLiteral("frmMain"));
  setWindowIcon(ProgramIcon());
  setCentralWidget(area_);
  BuildMenus();
  BuildControls();
  PlaceProgressBar();
  RelateCaptions();
  OpenMenusWithF10();
  resize(kUsualSize.boundedTo(screen()->availableSize() - FrameSize()));
}

void MainForm::BuildMenus() {
  for (const MenuEntryDesign& design : kMainMenuDesign) {
    auto* menu = Find<QMenu>(design.menu);
    if (!menu) menu = NewMenu(design.menu);
    if (design.separatorBefore) menu->addSeparator();
    QAction* entry = menu->addAction(QString());
    entry->setObjectName(QLatin1String(design.entry));
    entry->setCheckable(design.tick);
    entry->setShortcuts(QKeySequence::listFromString(QLatin1String(design.keys)));
    // Some desktops move entries with certain captions into a menu of their own; keep them here.
    entry->setMenuRole(QAction::NoRole);
  }
  Find<QAction>("mnuHelpDetailed")->setShortcut(QKeySequence::HelpContents);
}

QMenu* MainForm::NewMenu(const char* name) {
  const auto* submenu = std::find_if(
      kSubmenuDesign.begin(), kSubmenuDesign.end(),
      [name](const SubmenuDesign& one) { return QLatin1String(one.menu) == QLatin1String(name); });
  QMenu* menu = nullptr;
  if (submenu == kSubmenuDesign.end()) {
    menu = menuBar()->addMenu(QString());
  } else {
    auto* parent = Find<QMenu>(submenu->parent);
    parent->addSeparator();
    menu = parent->addMenu(QString());
  }
  menu->setObjectName(QLatin1String(name));
  menu->setToolTipsVisible(true);
  return menu;
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
    case ControlKind::Hairline:
      return NewHairline(area_);
    case ControlKind::LampFrame:
      return NewLampFrame(area_);
    case ControlKind::CheckBox:
      return NewToggleBox(area_, design.name);
    case ControlKind::Button:
      return NewButton(area_);
    case ControlKind::Swatch:
      return new SwatchLabel(area_);
    case ControlKind::Lock: {
      auto* lock = new LockWidget(area_);
      lock->hide();
      return lock;
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
  label->setWordWrap(design.kind == ControlKind::Status);
  if (design.placeAlone.isNull()) label->setFont(QuietFont(label->font()));
  const bool endsAtTheRight = design.kind == ControlKind::Caption ||
                              design.kind == ControlKind::Address ||
                              design.kind == ControlKind::Note;
  if (endsAtTheRight) label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

bool MainForm::ShowsStatusPanel() const {
  return showsStatusPanel_;
}

void MainForm::ShowStatusPanel(bool shown) {
  if (shown == showsStatusPanel_) return;
  showsStatusPanel_ = shown;
  for (const ControlDesign& design : kMainWindowDesign) {
    if (design.placeAlone.isNull()) Find<QWidget>(design.name)->setVisible(shown);
  }
  PlaceControls();
}

void MainForm::ShowLock(bool shown) {
  if (shown == showsLock_) return;
  showsLock_ = shown;
  PlaceControls();
  Find<QWidget>("lblLock")->setVisible(shown);
}

void MainForm::PlaceControls() {
  for (const ControlDesign& design : kMainWindowDesign) {
    const QRect place = PlaceOf(design);
    if (!place.isNull()) layout_->Place(Find<QWidget>(design.name), place);
  }
}

QRect MainForm::PlaceOf(const ControlDesign& design) const {
  QRect place = showsStatusPanel_ ? design.place : design.placeAlone;
  if (!showsLock_) return place;
  for (const SpanDesign& span : kBesideLock) {
    if (QLatin1String(span.name) != QLatin1String(design.name)) continue;
    place.setLeft(span.left);
    place.setWidth(span.width);
  }
  return place;
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

void MainForm::OpenMenusWithF10() {
  auto* open = new QShortcut(Qt::Key_F10, this);
  connect(open, &QShortcut::activated, this, [this] {
    menuBar()->setFocus(Qt::MenuBarFocusReason);
    menuBar()->setActiveAction(menuBar()->actions().constFirst());
  });
}

// If the keyboard has a Latin layout beside the Greek one, Qt finds the Latin letter of a key
// itself. If not, no shortcut takes the key, and it arrives here. A second shortcut for the Greek
// letter is no solution: with both layouts, Qt considers the two ambiguous.
void MainForm::keyPressEvent(QKeyEvent* event) {
  if (const Qt::Key key = LatinKeyOf(*event); key != event->key()) {
    const QKeyCombination latin(event->modifiers(), key);
    for (QAction* entry : findChildren<QAction*>()) {
      if (entry->shortcuts().contains(QKeySequence(latin))) return entry->trigger();
    }
  }
  QMainWindow::keyPressEvent(event);
}

QtLockLabel::QtLockLabel(MainForm& form)
    : QtControl(form.Find<LockWidget>("lblLock")), form_(form) {
  widget_->onPressed = [this] {
    if (onMouseDown) onMouseDown(MouseButton::Left);
  };
}

void QtLockLabel::SetCaption(std::u16string_view sentence) {
  const QString text = ToQt(sentence);
  if (text == widget_->text()) return;
  widget_->setText(text);
  SetToolTip(ToolTip());
  form_.ShowLock(!text.isEmpty());
  QAccessibleEvent renamed(widget_, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&renamed);
}

void QtLockLabel::SetToolTip(std::u16string_view text) {
  QtControl::SetToolTip(text);
  const QString below = text.empty() ? QString() : u'\n' + ToQt(text);
  widget_->setToolTip(PlainToolTip(widget_->text() + below));
}

void MainForm::PlacePane(QWidget* pane, const char* name) {
  pane->setObjectName(QLatin1String(name));
  const auto* design = std::find_if(
      kMainWindowDesign.begin(), kMainWindowDesign.end(),
      [name](const ControlDesign& one) { return QLatin1String(one.name) == QLatin1String(name); });
  layout_->Place(pane, design->place);
}

}  // namespace verlume::qt
