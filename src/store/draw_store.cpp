#include "store/draw_store.h"

#include "screen/strings.h"

namespace veridraw::store {

namespace {

constexpr int kPointerFile = 2;
constexpr int kDrawFile = 3;

void ReadDrawFile(SequentialFiles& files, DrawFields& draw) {
  files.Open(draw.DrawFileName, FileMode::Input, kDrawFile);
  files.Input(kDrawFile, draw.CurrentDrawText);
  files.Input(kDrawFile, draw.DrawNumbersText);
  files.Input(kDrawFile, draw.StrikeNumbersText);
  files.Close(kDrawFile);
}

}  // namespace

bool IsAcceptedNumber(const std::string& text) {
  const double value = Val(text);
  return value >= 1 && value <= kHighestNumber;
}

void ReadCurrentDraw(SequentialFiles& files, DrawFields& draw) {
  files.Open(kCurrentDrawFile, FileMode::Input, kPointerFile);
  files.Input(kPointerFile, draw.CurrentDrawText);
  files.Close(kPointerFile);
  draw.DrawFileName = draw.CurrentDrawText;
  ReadDrawFile(files, draw);
}

void SelectDraw(SequentialFiles& files, DrawFields& draw, const std::string& listText) {
  draw.CurrentDrawText = listText;
  draw.DrawFileName = CStr(Val(listText));
  files.Open(kCurrentDrawFile, FileMode::Output, kPointerFile);
  files.Print(kPointerFile, listText);
  files.Close(kPointerFile);
  files.Open(kCurrentDrawFile, FileMode::Input, kPointerFile);
  files.Input(kPointerFile, draw.CurrentDrawText);
  files.Close(kPointerFile);
  ReadDrawFile(files, draw);
}

void WriteDraw(SequentialFiles& files, DrawFields& draw) {
  files.Open(kCurrentDrawFile, FileMode::Output, kPointerFile);
  files.Print(kPointerFile, draw.CurrentDrawText);
  files.Close(kPointerFile);
  draw.DrawFileName = draw.CurrentDrawText;
  files.Open(draw.CurrentDrawText, FileMode::Output, kDrawFile);
  files.Print(kDrawFile, draw.CurrentDrawText);
  files.Print(kDrawFile, draw.DrawNumbersText);
  files.Print(kDrawFile, draw.StrikeNumbersText);
  files.Close(kDrawFile);
}

}  // namespace veridraw::store
