// The string and number conversions of the forms runtime. Strings are
// single-byte (Windows-1252) and compare byte by byte by code value.
#pragma once

#include <string>
#include <string_view>

#include "screen/integer.h"

namespace veridraw {

// The longest numeric prefix of the text, as classic BASIC reads it: blanks,
// tabs and line feeds are skipped wherever they stand; a sign, digits, a decimal
// point and an exponent (E or D), or the &H and &O prefixes. Text with no
// number in front gives 0.
double Val(std::string_view text);
// The same, always by the whole reader; Val takes a shorter way for plain digits.
double ReadVal(std::string_view text);

// Strict conversion: the text must be wholly a number, with blanks allowed only
// around it, or the program stops with fatal error 13.
double StrictNumber(std::string_view text);
Integer StrictInteger(std::string_view text);

// Integer to text: plain decimal digits, a minus for a negative value, no blank.
std::string CStr(int value);
// A floating-point number to text as the runtime writes it: "705", "7.5".
std::string CStr(double value);

// Characters: Left and Mid give fewer characters at the end of the string and ""
// past it; Mid counts its start from 1.
std::string Left(std::string_view text, int count);
std::string Mid(std::string_view text, int start, int count);
int Len(std::string_view text);

}  // namespace veridraw
