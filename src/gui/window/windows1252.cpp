#include "gui/window/windows1252.h"

#include <QList>
#include <algorithm>
#include <array>

namespace veridraw::gui {

namespace {

// The bytes 0x80 to 0x9F; the five that Windows-1252 leaves undefined keep
// their own value, as the C1 control characters of Latin-1.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr unsigned kFirstHigh = 0x80;
constexpr unsigned kPastHigh = 0xA0;

}  // namespace

QString fromWindows1252(std::string_view bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    const bool high = value >= kFirstHigh && value < kPastHigh;
    text.append(QChar(high ? kHighControls[value - kFirstHigh] : char16_t{value}));
  }
  return text;
}

char toWindows1252(char32_t character) {
  if (character < kFirstHigh || (character >= kPastHigh && character <= 0xFF))
    return static_cast<char>(character);
  const auto found = std::find(kHighControls.begin(), kHighControls.end(), character);
  if (found == kHighControls.end()) return '?';
  return static_cast<char>(kFirstHigh + (found - kHighControls.begin()));
}

std::string toWindows1252(const QString& text) {
  std::string bytes;
  for (const char32_t character : text.toUcs4())
    bytes.push_back(toWindows1252(character));
  return bytes;
}

}  // namespace veridraw::gui
