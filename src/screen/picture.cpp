#include "screen/picture.h"

namespace veridraw {

std::string_view pictureName(Picture picture) {
  switch (picture) {
    case Picture::None:
      return "";
    case Picture::Lotto:
      return "lotto";
    case Picture::Strike:
      return "strike";
    case Picture::PowerBall:
      return "powerball";
    case Picture::Notice:
      return "notice";
    case Picture::Mark:
      return "mark";
    case Picture::Coins:
      return "coins";
    case Picture::Money:
      return "money";
    case Picture::LottoBalls:
      return "lotto-balls";
    case Picture::LottoTicket:
      return "lotto-ticket";
    case Picture::StrikeBalls:
      return "strike-balls";
    case Picture::StrikeTicket:
      return "strike-ticket";
    case Picture::DocumentLotto:
      return "document-lotto";
    case Picture::DocumentStrike:
      return "document-strike";
    case Picture::DocumentPowerBall:
      return "document-powerball";
    case Picture::DocumentNotes:
      return "document-notes";
    case Picture::DocumentContact:
      return "document-contact";
  }
  return "";
}

}  // namespace veridraw
