#include "shell/text_style.h"

#include "platform/dialogs.h"
#include "platform/rich_text_box.h"

namespace verlume {

SelectionFormat FormatOf(const TextStyle& style) {
  return {.fontName = style.Name,
          .fontSize = style.Size,
          .color = style.Color,
          .bold = style.Bold,
          .italic = style.Italic,
          .underline = style.Underline,
          .strikethrough = style.Strikethrough};
}

TextStyle StyleOf(const SelectionFormat& format, const TextStyle& current) {
  return {.Name = format.fontName.value_or(current.Name),
          .Bold = format.bold.value_or(false),
          .Italic = format.italic.value_or(false),
          .Strikethrough = format.strikethrough.value_or(false),
          .Underline = format.underline.value_or(false),
          .Color = format.color.value_or(current.Color),
          .Size = format.fontSize.value_or(current.Size)};
}

FontChoice FontChoiceOf(const TextStyle& style) {
  return {.name = style.Name,
          .bold = style.Bold,
          .italic = style.Italic,
          .underline = style.Underline,
          .strikethrough = style.Strikethrough,
          .color = style.Color,
          .size = style.Size};
}

TextStyle StyleOf(const FontChoice& choice) {
  return {.Name = choice.name,
          .Bold = choice.bold,
          .Italic = choice.italic,
          .Strikethrough = choice.strikethrough,
          .Underline = choice.underline,
          .Color = choice.color,
          .Size = choice.size};
}

}  // namespace verlume
