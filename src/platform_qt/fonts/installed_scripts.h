// Which scripts can be shown with the fonts of this computer.
#pragma once

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QRawFont>
#include <QSet>
#include <QStringList>

namespace verlume::qt {

// Whether Qt shows the script only in a font that says how its letters are put together: the
// scripts of India, Khmer, Syriac, Thaana and N'Ko.
bool NeedsOpenType(QChar::Script script);

// Those of these scripts that a font's table "GSUB" has rules for; none when it makes no sense.
QSet<QChar::Script> ScriptsOf(const QByteArray& gsub);

// Looking at a font takes about half a millisecond, so they are looked at one after the other, in
// as many turns as that takes.
class InstalledScripts {
 public:
  // The one that all boxes share.
  static InstalledScripts& Instance();
  InstalledScripts();

  bool IsComplete() const { return next_ == families_.size(); }
  // Looks at fonts for the time of a turn.
  void RunTurn();
  // Whether fonts that have been looked at show the script: its letters, and how they are put
  // together where it takes OpenType to know that. True for what every computer shows.
  bool Shows(QChar::Script script) const;

 private:
  void LookAt(const QRawFont& font);

  const QStringList families_;
  qsizetype next_ = 0;
  QList<QChar::Script> withoutLetters_;  // so far
  QSet<QChar::Script> withRules_;
};

}  // namespace verlume::qt
