// The RTF reader itself: one pass over the tokens.
#pragma once

#include "richtext/document.h"
#include "richtext/rtf_content.h"
#include "richtext/rtf_tokens.h"

namespace verlume::richtext {

// Reads a document of characters (char16_t) or bytes (char). For use once. What a document says of
// its fonts counts for the parts that come behind.
template <typename Ch>
class RtfParser {
 public:
  // `expectedLength` of a part's text.
  RtfParser(const Ch* begin, const Ch* end, std::size_t expectedLength);

  // Reads on, about so many characters of RTF, and gives what they hold.
  Document ParsePart(std::size_t length);
  // Whether all has been read, or nothing that comes belongs to the document.
  bool IsDone() const { return tokens_.AtEnd() || content_.Ended(); }

 private:
  void ReadBrace();
  void ReadText();
  void ReadUpperByte();
  void ReadControl();
  void ReadSymbol();
  void ReadHexCharacter();
  void ReadIgnorable();

  void Apply(const ControlToken& token);
  void ApplyUnicode(int number);
  void ApplyBinary(int length);
  void ApplyTable(Destination table);

  void Emit(char16_t unit);
  void EmitByte(unsigned char byte);
  void EmitUpperBytes(unsigned char first);
  void EmitBreak(bool endsParagraph);
  bool TryEmitUtf8(unsigned char first);
  bool SkipFallback();

  const Ch* partEnd_;  // of the RTF that is read now
  RtfTokens<Ch> tokens_;
  RtfContent content_;
  int fallbackLeft_ = 0;  // characters still to be passed over behind \u
};

extern template class RtfParser<char>;
extern template class RtfParser<char16_t>;

}  // namespace verlume::richtext
