#include "platform_qt/controls/mnemonics.h"

#include <QCheckBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

namespace verlume::qt {
namespace {

// The property in which a widget or action keeps its caption without mnemonic.
constexpr auto kCaption = "verlumeCaption";
// The property of push buttons that have a letter in a window with a menu bar.
constexpr auto kKeepsMnemonic = "verlumeKeepsMnemonic";

// The key of the letter; null if it cannot be a mnemonic. An accented letter needs two keys, and a
// final sigma is not on the key of its letter.
QChar KeyOf(QChar c) {
  const bool makesOne =
      c.isLetterOrNumber() && c.decompositionTag() == QChar::NoDecomposition && c != u'ς';
  return makesOne ? c.toUpper() : QChar();
}

bool BeginsWord(const QString& caption, qsizetype place) {
  return place == 0 || caption[place - 1].isSpace();
}

// How suitable a letter of the caption is. Best is the first letter of a word, then any other
// letter; last is a letter of another script than the caption's, which needs another keyboard
// layout.
enum class Rank { BeginsWord, Inside, OtherScript };

Rank RankOf(const QString& caption, qsizetype place) {
  if (caption[place].script() != caption[0].script()) return Rank::OtherScript;
  return BeginsWord(caption, place) ? Rank::BeginsWord : Rank::Inside;
}

// The places where the caption could have its letter, best first.
std::vector<qsizetype> PlacesOf(const QString& caption, const QString& taken, Rank worst) {
  std::vector<qsizetype> places;
  for (const Rank rank : {Rank::BeginsWord, Rank::Inside, Rank::OtherScript}) {
    for (qsizetype i = 0; rank <= worst && i < caption.size(); ++i) {
      const QChar key = KeyOf(caption[i]);
      if (key.isNull() || taken.contains(key) || RankOf(caption, i) != rank) continue;
      places.push_back(i);
    }
  }
  return places;
}

// Assigns letters so that as many captions as possible get one.
class Chooser {
 public:
  Chooser(const QStringList& captions, const QString& taken)
      : captions_(captions), taken_(taken), chosen_(captions.size(), -1) {}

  std::vector<qsizetype> Choose() {
    // First letters of words are given out before captions take letters from within words.
    for (const Rank worst : {Rank::BeginsWord, Rank::Inside, Rank::OtherScript}) {
      worst_ = worst;
      for (std::size_t i = 0; i < chosen_.size(); ++i) {
        tried_.clear();
        if (chosen_[i] < 0) Give(i);
      }
    }
    return chosen_;
  }

 private:
  bool Give(std::size_t index) {
    const QString& caption = captions_[static_cast<qsizetype>(index)];
    const std::vector<qsizetype> places = PlacesOf(caption, taken_, worst_);
    for (const qsizetype place : places) {
      if (OwnerOf(KeyOf(caption[place])) < 0) return Take(index, place);
    }
    for (const qsizetype place : places) {
      const QChar key = KeyOf(caption[place]);
      if (tried_.contains(key)) continue;
      tried_.append(key);
      if (Give(static_cast<std::size_t>(OwnerOf(key)))) return Take(index, place);
    }
    return false;
  }

  bool Take(std::size_t index, qsizetype place) {
    chosen_[index] = place;
    return true;
  }

  qsizetype OwnerOf(QChar key) const {
    for (std::size_t i = 0; i < chosen_.size(); ++i) {
      const auto index = static_cast<qsizetype>(i);
      if (chosen_[i] >= 0 && KeyOf(captions_[index][chosen_[i]]) == key) return index;
    }
    return -1;
  }

  const QStringList& captions_;
  const QString& taken_;
  std::vector<qsizetype> chosen_;
  QString tried_;
  Rank worst_ = Rank::BeginsWord;
};

template <class Element>
QString CaptionOf(const Element* element) {
  return element->property(kCaption).toString();
}

// Gives each of them its letter, and returns all letters taken afterwards.
template <class Element>
QString SetTexts(const QList<Element*>& elements, const QString& taken) {
  QStringList captions;
  for (const Element* element : elements) captions.append(CaptionOf(element));
  const std::vector<qsizetype> places = ChooseMnemonics(captions, taken);
  QString keys = taken;
  for (qsizetype i = 0; i < elements.size(); ++i) {
    const qsizetype place = places[static_cast<std::size_t>(i)];
    elements[i]->setText(WithMnemonic(captions[i], place));
    if (place >= 0) keys.append(KeyOf(captions[i][place]));
  }
  return keys;
}

// Assigns everything that Alt and a letter reach in a window: first the menus of the menu bar, then
// the check boxes, then what KeepMnemonic says. Without a menu bar, all buttons get letters, before
// the check boxes.
void SetTextsOfWindow(QWidget* window) {
  QList<QAbstractButton*> elements;
  const auto add = [&](const auto& found, const char* property) {
    for (auto* one : found) {
      const bool isCaptioned = one->window() == window && one->property(kCaption).isValid();
      if (isCaptioned && one->property(property).isValid()) elements.append(one);
    }
  };
  const auto* bar = window->findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
  const QString taken = bar ? SetTexts(bar->actions(), QString()) : QString();
  if (!bar) add(window->findChildren<QPushButton*>(), kCaption);
  add(window->findChildren<QCheckBox*>(), kCaption);
  if (bar) add(window->findChildren<QPushButton*>(), kKeepsMnemonic);
  SetTexts(elements, taken);
}

}  // namespace

std::vector<qsizetype> ChooseMnemonics(const QStringList& captions, const QString& taken) {
  return Chooser(captions, taken).Choose();
}

QString WithMnemonic(const QString& caption, qsizetype place) {
  QString text;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (i == place || caption[i] == u'&') text += u'&';
    text += caption[i];
  }
  return text;
}

void SetCaptionWithMnemonic(QAction* action, const QString& caption) {
  action->setProperty(kCaption, caption);
  for (QObject* place : action->associatedObjects()) {
    if (auto* bar = qobject_cast<QMenuBar*>(place)) return SetTextsOfWindow(bar->window());
    const auto* menu = qobject_cast<QMenu*>(place);
    if (!menu) continue;
    QList<QAction*> entries = menu->actions();
    entries.removeIf([](const QAction* entry) { return entry->isSeparator(); });
    SetTexts(entries, QString());
    return;
  }
  action->setText(WithMnemonic(caption, -1));
}

void KeepMnemonic(QPushButton* button) {
  button->setProperty(kKeepsMnemonic, true);
}

void SetCaptionWithMnemonic(QAbstractButton* button, const QString& caption) {
  button->setProperty(kCaption, caption);
  button->setText(WithMnemonic(caption, -1));
  SetTextsOfWindow(button->window());
}

}  // namespace verlume::qt
