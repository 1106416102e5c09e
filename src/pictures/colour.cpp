#include "pictures/colour.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace veridraw::pictures {

namespace {

constexpr int kTop = 0xFFFF;
// The hue of a grey, which has none.
constexpr int kNoHue = 0xFFFF;

// Rounded to the nearest whole number, halves up.
int rounded(float value) {
  return static_cast<int>(value + 0.5F);
}

bool nearlyZero(float value) {
  return std::fabs(value) <= 0.00001F;
}

bool nearlyEqual(float a, float b) {
  return std::fabs(a - b) * 100000.F <= std::min(std::fabs(a), std::fabs(b));
}

// Hue in hundredths of a degree (kNoHue for a grey), saturation and value,
// each in 16 bits.
struct Hsv {
  int hue = kNoHue;
  int saturation = 0;
  int value = 0;
};

float share(std::uint16_t channel) {
  return static_cast<float>(channel) / static_cast<float>(kTop);
}

Hsv toHsv(const Colour& colour) {
  const float red = share(colour.wideRed());
  const float green = share(colour.wideGreen());
  const float blue = share(colour.wideBlue());
  const float max = std::max({red, green, blue});
  const float min = std::min({red, green, blue});
  const float delta = max - min;
  Hsv hsv;
  hsv.value = rounded(max * kTop);
  if (nearlyZero(delta)) return hsv;
  hsv.saturation = rounded((delta / max) * kTop);
  float hue = 0;
  if (nearlyEqual(red, max)) {
    hue = (green - blue) / delta;
  } else if (nearlyEqual(green, max)) {
    hue = 2.0F + (blue - red) / delta;
  } else {
    hue = 4.0F + (red - green) / delta;
  }
  hue *= 60.0F;
  if (hue < 0.0F) hue += 360.0F;
  hsv.hue = rounded(hue * 100.0F);
  return hsv;
}

// Which of the three values of a sector of hue makes each of red, green and
// blue: the value itself, the floor p, or the one that rises or falls across
// the sector.
enum Part { kValue, kFloor, kSlope };
constexpr std::array<std::array<Part, 3>, 6> kSectors{{{kValue, kSlope, kFloor},
                                                       {kSlope, kValue, kFloor},
                                                       {kFloor, kValue, kSlope},
                                                       {kFloor, kSlope, kValue},
                                                       {kSlope, kFloor, kValue},
                                                       {kValue, kFloor, kSlope}}};

Colour fromHsv(const Hsv& hsv, std::uint16_t alpha) {
  if (hsv.saturation == 0 || hsv.hue == kNoHue) {
    const auto grey = static_cast<std::uint16_t>(hsv.value);
    return Colour::fromWide(grey, grey, grey, alpha);
  }
  const float h = hsv.hue == 36000 ? 0.0F : static_cast<float>(hsv.hue) / 6000.0F;
  const float s = static_cast<float>(hsv.saturation) / static_cast<float>(kTop);
  const float v = static_cast<float>(hsv.value) / static_cast<float>(kTop);
  const int sector = static_cast<int>(h);
  const float f = h - static_cast<float>(sector);
  // Falling across an odd sector, rising across an even one.
  const float slope = (sector & 1) != 0 ? v * (1.0F - (s * f)) : v * (1.0F - (s * (1.0F - f)));
  const std::array<float, 3> parts{v, v * (1.0F - s), slope};
  const std::array<Part, 3>& order = kSectors[static_cast<std::size_t>(sector)];
  const auto channel = [&parts](Part part) {
    return static_cast<std::uint16_t>(rounded(parts[part] * kTop));
  };
  return Colour::fromWide(channel(order[0]), channel(order[1]), channel(order[2]), alpha);
}

}  // namespace

Colour Colour::darker(int factor) const {
  if (factor <= 0) return *this;
  if (factor < 100) return lighter(10000 / factor);
  Hsv hsv = toHsv(*this);
  hsv.value = hsv.value * 100 / factor;
  return fromHsv(hsv, alpha_);
}

Colour Colour::lighter(int factor) const {
  if (factor <= 0) return *this;
  if (factor < 100) return darker(10000 / factor);
  Hsv hsv = toHsv(*this);
  int value = factor * hsv.value / 100;
  if (value > kTop) {
    hsv.saturation = std::max(0, hsv.saturation - (value - kTop));
    value = kTop;
  }
  hsv.value = value;
  return fromHsv(hsv, alpha_);
}

int Colour::lightness() const {
  const float red = share(red_);
  const float green = share(green_);
  const float blue = share(blue_);
  const float sum = std::max({red, green, blue}) + std::min({red, green, blue});
  const int wideLightness = rounded(sum * 0.5F * kTop);
  // From 16 bits to 8, rounded.
  return (wideLightness - (wideLightness >> 8) + 0x80) >> 8;
}

}  // namespace veridraw::pictures
