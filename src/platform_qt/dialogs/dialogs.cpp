#include "platform_qt/dialogs/dialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <memory>

#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/focus_refusal.h"
#include "platform_qt/dialogs/typing_guard.h"
#include "platform_qt/os/crash_report.h"

namespace verlume::qt {
namespace {

struct ButtonDesign {
  Answer answer;
  QMessageBox::StandardButton button;
  const char16_t* english;
  const char16_t* greek;
};

constexpr ButtonDesign kButtons[] = {
    {Answer::Ok, QMessageBox::Ok, u"OK", u"OK"},
    {Answer::Yes, QMessageBox::Yes, u"&Yes", u"&Ναι"},
    {Answer::No, QMessageBox::No, u"&No", u"&Όχι"},
    {Answer::Cancel, QMessageBox::Cancel, u"Cancel", u"Άκυρο"},
};

bool Has(MessageButtons buttons, Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return buttons == MessageButtons::Ok;
    case Answer::Cancel:
      return buttons == MessageButtons::YesNoCancel;
    default:
      return buttons != MessageButtons::Ok;
  }
}

// The answer when a box is closed without a button.
Answer AnswerOfClosing(MessageButtons buttons) {
  if (Has(buttons, Answer::Cancel)) return Answer::Cancel;
  return Has(buttons, Answer::No) ? Answer::No : Answer::Ok;
}

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Question:
      return QMessageBox::Question;
    case MessageIcon::Stop:
      return QMessageBox::Critical;
    default:
      return QMessageBox::Information;
  }
}

void AddTick(QMessageBox& box, const Tick& tick) {
  auto* check = new QCheckBox(ToQt(tick.text));
  check->setObjectName(QStringLiteral("tick"));
  check->setChecked(tick.isSet);
  box.setCheckBox(check);
}

QString WithLineBreaks(std::u16string_view text) {
  return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

bool IsLineBreakOrControl(QChar unit) {
  return unit.category() == QChar::Other_Control || unit == QChar::LineSeparator ||
         unit == QChar::ParagraphSeparator;
}

// Makes pasted text one line: line breaks and control characters become blanks, half a surrogate
// pair the replacement character.
std::u16string AsOneLine(QString text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool isPair =
        text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    if (isPair) {
      ++i;
    } else if (text[i].isSurrogate()) {
      text[i] = QChar::ReplacementCharacter;
    } else if (IsLineBreakOrControl(text[i])) {
      text[i] = u' ';
    }
  }
  return FromQt(text);
}

// Whether the window below the box has not been shown yet: the user has just started the program.
bool IsStartingUp(const QWidget& box) {
  return box.parentWidget() && !box.parentWidget()->window()->isVisible();
}

}  // namespace

QWidget* ParentOfBoxes(QWidget* mainWindow) {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  return mainWindow;
}

void KeepToOwnProgram(QWidget* box) {
  const bool isActive = QGuiApplication::applicationState() == Qt::ApplicationActive;
  const bool mayTakeKeyboard = isActive || IsStartingUp(*box);
  box->setAttribute(Qt::WA_ShowWithoutActivating, !mayTakeKeyboard);
  if (!mayTakeKeyboard) new FocusRefusal(box);
}

QtDialogs::QtDialogs(QWidget* mainWindow) : mainWindow_(mainWindow) {}

void QtDialogs::SetLanguage(bool isGreek) {
  if (isGreek == isGreek_) return;
  isGreek_ = isGreek;
  SetCrashNoticeLanguage(isGreek);
  if (isGreek) {
    QCoreApplication::installTranslator(&greek_);
  } else {
    QCoreApplication::removeTranslator(&greek_);
  }
}

void QtDialogs::AddButtons(QMessageBox& box, const Message& message) const {
  for (const ButtonDesign& design : kButtons) {
    if (!Has(message.buttons, design.answer)) continue;
    QPushButton* button = box.addButton(design.button);
    button->setText(ToQt(isGreek_ ? design.greek : design.english));
    if (design.answer == message.defaultAnswer) box.setDefaultButton(button);
    if (design.answer == AnswerOfClosing(message.buttons)) box.setEscapeButton(button);
  }
}

Answer QtDialogs::ShowMessage(const Message& message) {
  // The box is deleted with its parent if the program ends meanwhile.
  QPointer<QMessageBox> box = new QMessageBox(ParentOfBoxes(mainWindow_));
  box->setObjectName(QStringLiteral("messageBox"));
  box->setWindowTitle(ToQt(message.title));
  box->setTextFormat(Qt::PlainText);
  box->setText(WithLineBreaks(message.text));
  box->setIcon(IconOf(message.icon));
  AddButtons(*box, message);
  if (message.tick) AddTick(*box, *message.tick);
  KeepToOwnProgram(box);
  if (message.unexpected) {
    new TypingGuard(box, keyClock_);
    if (mainWindow_) QApplication::alert(mainWindow_);
  }
  box->exec();
  if (!box) return AnswerOfClosing(message.buttons);
  const std::unique_ptr<QMessageBox> owned(box.data());
  if (message.tick) message.tick->isSet = owned->checkBox()->isChecked();
  const QAbstractButton* clicked = owned->clickedButton();
  for (const ButtonDesign& design : kButtons) {
    if (clicked && clicked == owned->button(design.button)) return design.answer;
  }
  return AnswerOfClosing(message.buttons);
}

std::u16string QtDialogs::AskText(std::u16string_view prompt, std::u16string_view title,
                                  std::u16string_view defaultText) {
  QPointer<QInputDialog> box = new QInputDialog(ParentOfBoxes(mainWindow_));
  box->setObjectName(QStringLiteral("inputBox"));
  box->setWindowTitle(ToQt(title));
  box->setInputMode(QInputDialog::TextInput);
  box->setLabelText(WithLineBreaks(prompt));
  box->setTextValue(ToQt(defaultText));
  for (QLabel* label : box->findChildren<QLabel*>()) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // Wide enough for about sixty characters; a longer prompt is wrapped.
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 60);
  }
  KeepToOwnProgram(box);
  const bool accepted = box->exec() == QDialog::Accepted;
  if (!box) return {};
  const std::unique_ptr<QInputDialog> owned(box.data());
  return accepted ? AsOneLine(owned->textValue()) : std::u16string();
}

}  // namespace verlume::qt
