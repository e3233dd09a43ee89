#include "platform_qt/dialogs/greek_translator.h"

#include <unordered_map>

#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/greek_translator_texts.h"

namespace verlume::qt {
namespace {

using Texts = std::unordered_map<std::string_view, std::u16string_view>;

template <class Table>
void Add(Texts& texts, const Table& table) {
  for (const QtText& text : table) texts.emplace(text.source, text.greek);
}

const Texts& AllTexts() {
  static const Texts all = [] {
    Texts texts;
    Add(texts, kButtonTexts);
    Add(texts, kEditMenuTexts);
    Add(texts, kFileDialogTexts);
    Add(texts, kFileQuestionTexts);
    Add(texts, kColorDialogTexts);
    Add(texts, kFontDialogTexts);
    Add(texts, kWritingSystemTexts);
    return texts;
  }();
  return all;
}

// Names of keys ("Delete", "Home") stay English, as printed on the keyboard.
bool IsKeyName(const char* context) {
  return context && std::string_view(context) == "QShortcut";
}

}  // namespace

QString GreekTranslator::translate(const char* context, const char* sourceText, const char*,
                                   int) const {
  if (!sourceText || IsKeyName(context)) return {};
  const auto found = AllTexts().find(sourceText);
  return found == AllTexts().end() ? QString() : ToQt(found->second);
}

}  // namespace verlume::qt
