#include "platform_qt/text/readable_shade.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace verlume::qt {
namespace {

constexpr double kWellLegible = 4.5;

// WCAG 2 adds this to each luminance, for the light that every screen reflects.
constexpr double kReflection = 0.05;

constexpr Color kBlack = 0x000000;
constexpr Color kWhite = 0xFFFFFF;
constexpr int kMostOfChannel = 255;
constexpr int kBitsOfChannel = 8;

int Channel(Color color, int number) {
  return (color >> (kBitsOfChannel * number)) & kMostOfChannel;
}

// How much light a value of a channel stands for, from 0 to 1.
double Light(int value) {
  static const auto table = [] {
    std::array<double, kMostOfChannel + 1> all{};
    for (int i = 0; i <= kMostOfChannel; ++i) {
      const double part = static_cast<double>(i) / kMostOfChannel;
      all[i] = part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return all;
  }();
  return table[value];
}

double Luminance(Color color) {
  return 0.2126 * Light(Channel(color, 0)) + 0.7152 * Light(Channel(color, 1)) +
         0.0722 * Light(Channel(color, 2));
}

// Each channel goes the same part of its way, which keeps the hue.
Color Mixed(Color from, Color to, int part) {
  Color mixed = 0;
  for (int number = 0; number < 3; ++number) {
    const int start = Channel(from, number);
    const int way = (Channel(to, number) - start) * part;
    mixed |= (start + way / kMostOfChannel) << (kBitsOfChannel * number);
  }
  return mixed;
}

// How far the colour must go towards `end`, black or white, to be that much darker or lighter than
// the background; more than the whole way if even `end` is not.
int PartTowards(Color end, Color color, Color background) {
  const double ground = Luminance(background) + kReflection;
  const auto isEnough = [&](int part) {
    const double light = Luminance(Mixed(color, end, part)) + kReflection;
    return (end == kBlack ? ground / light : light / ground) >= kWellLegible;
  };
  int least = 0;
  int most = kMostOfChannel + 1;
  while (least < most) {
    const int middle = (least + most) / 2;
    if (isEnough(middle)) {
      most = middle;
    } else {
      least = middle + 1;
    }
  }
  return least;
}

}  // namespace

double Contrast(Color one, Color other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + kReflection) / (dark + kReflection);
}

Color ReadableShade(Color color, Color background) {
  if (Contrast(color, background) >= kLegibleContrast) return color;
  if (color == kBlack) return kWhite;
  // Black or white has that contrast with any background.
  const int darker = PartTowards(kBlack, color, background);
  const int lighter = PartTowards(kWhite, color, background);
  return darker <= lighter ? Mixed(color, kBlack, darker) : Mixed(color, kWhite, lighter);
}

}  // namespace verlume::qt
