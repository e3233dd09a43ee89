// The one reader of RTF's grammar: one pass over the tokens, linear, without recursion. What it
// finds it tells a listener.
#pragma once

#include "richtext/rtf_content.h"
#include "richtext/rtf_state.h"
#include "richtext/rtf_tokens.h"

namespace verlume::richtext {

// Reads a document of characters (char16_t) or bytes (char); for use once. The listener is
// RtfContent, which keeps the text, or RtfState, which does not.
template <typename Ch, typename Listener>
class RtfParser {
 public:
  // `arguments` are those of the listener.
  template <typename... Arguments>
  RtfParser(const Ch* begin, const Ch* end, Arguments... arguments)
      : limit_(begin), token_(begin), tokens_(begin, end), listener_(arguments...) {}

  // Reads on to the end of a token, about so many characters further.
  void ReadOn(std::size_t length);
  // Reads one token, or what stands between two: also what is no part of the document any more.
  // There must be something left.
  void ReadToken();

  // Whether all has been read, or nothing that comes belongs to the document.
  bool IsDone() const { return tokens_.AtEnd() || listener_.Ended(); }
  const Ch* At() const { return tokens_.At(); }
  const Ch* LastToken() const { return token_; }  // where the one read last begins

  // The last \uN that was read, and how many of the characters behind it are still to be passed
  // over.
  const Ch* LastUnicode() const { return unicode_; }
  int LastUnicodeNumber() const { return unicodeNumber_; }
  int FallbackLeft() const { return fallbackLeft_; }

  // Whether this is a group of which nothing is shown, and how many groups are open inside it.
  bool IsSkipping() const { return isSkipping_; }
  std::size_t SkippedDepth() const { return skippedDepth_; }

  const Listener& GetListener() const { return listener_; }
  Listener& GetListener() { return listener_; }

 private:
  void ReadNext();
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

  void SkipGroup();
  void ReadSkipped();
  void SkipControl();
  void SkipData(int length);

  void Emit(char16_t unit);
  void EmitByte(unsigned char byte);
  void EmitUpperBytes(unsigned char first);
  void EmitBreak(bool endsParagraph);
  bool TryEmitUtf8(unsigned char first);
  bool SkipFallback();

  const Ch* limit_;  // where reading stops between two tokens
  const Ch* token_;
  RtfTokens<Ch> tokens_;
  Listener listener_;
  const Ch* unicode_ = nullptr;
  int unicodeNumber_ = 0;
  int fallbackLeft_ = 0;
  bool isSkipping_ = false;
  std::size_t skippedDepth_ = 0;
};

extern template class RtfParser<char, RtfContent>;
extern template class RtfParser<char16_t, RtfContent>;
extern template class RtfParser<char, RtfState>;
extern template class RtfParser<char16_t, RtfState>;

}  // namespace verlume::richtext
