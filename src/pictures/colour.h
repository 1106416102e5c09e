// A colour as the drawing toolkits keep it: red, green, blue and alpha in 16
// bits each, so that a shade worked out from another (darker, lighter) is the
// same on every face, to the last bit that reaches the screen.
#pragma once

#include <cstdint>

namespace veridraw::pictures {

class Colour {
 public:
  // Opaque black.
  constexpr Colour() = default;
  // From channels of 0 to 255.
  constexpr Colour(int red, int green, int blue, int alpha = 255)
      : red_(wide(red)), green_(wide(green)), blue_(wide(blue)), alpha_(wide(alpha)) {}
  // From channels of 0 to 65535.
  static constexpr Colour fromWide(std::uint16_t red, std::uint16_t green, std::uint16_t blue,
                                   std::uint16_t alpha) {
    Colour colour;
    colour.red_ = red;
    colour.green_ = green;
    colour.blue_ = blue;
    colour.alpha_ = alpha;
    return colour;
  }

  constexpr std::uint16_t wideRed() const { return red_; }
  constexpr std::uint16_t wideGreen() const { return green_; }
  constexpr std::uint16_t wideBlue() const { return blue_; }
  constexpr std::uint16_t wideAlpha() const { return alpha_; }

  // The colour with its value (of hue, saturation and value) multiplied by
  // factor / 100: darker(200) halves it, lighter(150) takes it half as high
  // again, giving up saturation where the value would pass its top.
  Colour darker(int factor) const;
  Colour lighter(int factor) const;
  // The lightness of hue, saturation and lightness, from 0 to 255.
  int lightness() const;

  bool operator==(const Colour&) const = default;

 private:
  static constexpr std::uint16_t wide(int channel) {
    return static_cast<std::uint16_t>(channel * 0x101);
  }

  std::uint16_t red_ = 0;
  std::uint16_t green_ = 0;
  std::uint16_t blue_ = 0;
  std::uint16_t alpha_ = 0xFFFF;
};

inline constexpr Colour kWhiteColour{255, 255, 255};
inline constexpr Colour kBlackColour{0, 0, 0};

}  // namespace veridraw::pictures
