// The model keeps its strings as Windows-1252 bytes; Qt speaks Unicode. Every
// string crosses between them here.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace veridraw::gui {

QString fromWindows1252(std::string_view bytes);
// A character that Windows-1252 can't hold becomes '?'.
std::string toWindows1252(const QString& text);
char toWindows1252(char32_t character);

}  // namespace veridraw::gui
