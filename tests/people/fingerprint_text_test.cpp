#include "people/fingerprint_text.h"

#include <gtest/gtest.h>

namespace verlume {
namespace {

class FingerprintTextTest : public testing::Test {
 protected:
  FingerprintTextTest() {
    for (std::size_t i = 0; i < key.size(); ++i) key[i] = static_cast<std::uint8_t>(i * 8 + 7);
  }
  KeyFingerprint key{};
};

TEST_F(FingerprintTextTest, HexIsReadInAnyCase) {
  const std::u16string hex = HexText(key);
  EXPECT_EQ(hex, u"070f171f272f373f474f575f676f777f878f979fa7afb7bfc7cfd7dfe7eff7ff");
  EXPECT_EQ(FingerprintInHex(hex), key);
  EXPECT_EQ(FingerprintInHex(u"070F171F272F373F474F575F676F777F878F979FA7AFB7BFC7CFD7DFE7EFF7FF"),
            key);
  EXPECT_EQ(FingerprintInHex(hex.substr(1)), std::nullopt);
  EXPECT_EQ(FingerprintInHex(hex.substr(1) + u"g"), std::nullopt);
}

TEST_F(FingerprintTextTest, Base64UrlHas43CharactersAndOneTextForEachKey) {
  const std::u16string text = Base64UrlText(key);
  EXPECT_EQ(text, u"Bw8XHycvNz9HT1dfZ293f4ePl5-nr7e_x8_X3-fv9_8");
  EXPECT_EQ(FingerprintInBase64Url(text), key);
  EXPECT_EQ(FingerprintInBase64Url(text.substr(1)), std::nullopt);
  EXPECT_EQ(FingerprintInBase64Url(text + u"="), std::nullopt);
  EXPECT_EQ(FingerprintInBase64Url(text + u"A"), std::nullopt);
  // Other bits behind the key.
  EXPECT_EQ(FingerprintInBase64Url(text.substr(0, 42) + u"9"), std::nullopt);
  // The alphabet of other base64.
  EXPECT_EQ(FingerprintInBase64Url(u"/" + text.substr(1)), std::nullopt);
}

}  // namespace
}  // namespace verlume
