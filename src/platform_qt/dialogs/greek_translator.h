// Qt's own texts in Greek: the buttons of its boxes, its file, colour and font dialogs and the menu
// of its edit controls.
#pragma once

#include <QTranslator>

namespace verlume::qt {

class GreekTranslator : public QTranslator {
 public:
  using QTranslator::QTranslator;

  // Qt installs no translator that calls itself empty.
  bool isEmpty() const override { return false; }
  // Null, which leaves Qt's English, for a text that no part of the program shows.
  QString translate(const char* context, const char* sourceText, const char* disambiguation,
                    int n) const override;
};

}  // namespace verlume::qt
