// Greek translations of Qt's own texts: the buttons of its boxes, its file, colour and font
// dialogs, and the context menus of its text fields.
#pragma once

#include <QTranslator>

namespace verlume::qt {

class GreekTranslator : public QTranslator {
 public:
  using QTranslator::QTranslator;

  // Qt does not install a translator that says it is empty.
  bool isEmpty() const override { return false; }
  // Null for a text that no part of the program shows; Qt then uses its English text.
  QString translate(const char* context, const char* sourceText, const char* disambiguation,
                    int n) const override;
};

}  // namespace verlume::qt
