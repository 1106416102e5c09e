#include "pictures/pictures.h"

#include "pictures/decor_pictures.h"
#include "pictures/document_pictures.h"
#include "pictures/game_pictures.h"
#include "pictures/ticket_pictures.h"

namespace veridraw::pictures {

void drawPicture(Canvas& canvas, const Rect& area, Picture picture) {
  switch (picture) {
    case Picture::None:
      return;
    case Picture::Lotto:
      return drawLotto(canvas, area);
    // The Strike screen's balls are its game picture.
    case Picture::Strike:
    case Picture::StrikeBalls:
      return drawStrike(canvas, area);
    case Picture::PowerBall:
      return drawPowerBall(canvas, area);
    case Picture::Notice:
      return drawNotice(canvas, area);
    case Picture::Mark:
      return drawMark(canvas, area);
    case Picture::Coins:
      return drawCoins(canvas, area);
    case Picture::Money:
      return drawMoney(canvas, area);
    case Picture::LottoBalls:
      return drawDrawMachine(canvas, area);
    // Both ticket screens show the same slip.
    case Picture::LottoTicket:
    case Picture::StrikeTicket:
      return drawTicketSlip(canvas, area);
    case Picture::DocumentLotto:
    case Picture::DocumentStrike:
    case Picture::DocumentPowerBall:
    case Picture::DocumentNotes:
    case Picture::DocumentContact:
      drawDocument(canvas, area, picture);
      return;
  }
}

std::string pictureSubject(Picture picture) {
  switch (picture) {
    case Picture::None:
      return {};
    case Picture::Lotto:
      return "Lotto";
    case Picture::Strike:
    case Picture::StrikeBalls:
      return "Strike";
    case Picture::PowerBall:
      return "PowerBall";
    case Picture::Notice:
      return std::string(noticeWords());
    case Picture::Mark:
      return "Veridraw mark";
    case Picture::Coins:
      return "Coins";
    case Picture::Money:
      return "Banknotes";
    case Picture::LottoBalls:
      return "Lotto draw machine";
    case Picture::LottoTicket:
      return "Lotto ticket";
    case Picture::StrikeTicket:
      return "Strike ticket";
    case Picture::DocumentLotto:
    case Picture::DocumentStrike:
    case Picture::DocumentPowerBall:
    case Picture::DocumentNotes:
    case Picture::DocumentContact:
      return documentWords(picture);
  }
  return {};
}

}  // namespace veridraw::pictures
