#include "pictures/pictures.h"

#include <array>
#include <string_view>

#include "pictures/decor_pictures.h"
#include "pictures/document_pictures.h"
#include "pictures/game_pictures.h"
#include "pictures/ticket_pictures.h"

namespace veridraw::pictures {

namespace {

using Drawing = void (*)(Canvas&, const Rect&);

// A picture, its drawing, and what it shows in a few words for those who
// can't see it. The documents and the notice say their own words.
struct Entry {
  Picture picture;
  Drawing draw;
  std::string_view subject;
};

constexpr std::array kEntries{
    Entry{Picture::Lotto, drawLotto, "Lotto"},
    Entry{Picture::Strike, drawStrike, "Strike"},
    Entry{Picture::PowerBall, drawPowerBall, "PowerBall"},
    Entry{Picture::Notice, drawNotice, {}},
    Entry{Picture::Mark, drawMark, "Veridraw mark"},
    Entry{Picture::Coins, drawCoins, "Coins"},
    Entry{Picture::Money, drawMoney, "Banknotes"},
    Entry{Picture::LottoBalls, drawDrawMachine, "Lotto draw machine"},
    Entry{Picture::LottoTicket, drawTicketSlip, "Lotto ticket"},
    // The Strike screen's decoration: its game picture and the ticket slip.
    Entry{Picture::StrikeBalls, drawStrike, "Strike"},
    Entry{Picture::StrikeTicket, drawTicketSlip, "Strike ticket"},
};

const Entry* entryOf(Picture picture) {
  for (const Entry& entry : kEntries)
    if (entry.picture == picture) return &entry;
  return nullptr;
}

}  // namespace

void drawPicture(Canvas& canvas, const Rect& area, Picture picture) {
  if (drawDocument(canvas, area, picture)) return;
  if (const Entry* entry = entryOf(picture)) entry->draw(canvas, area);
}

std::string pictureSubject(Picture picture) {
  if (std::string words = documentWords(picture); !words.empty()) return words;
  if (picture == Picture::Notice) return std::string(noticeWords());
  const Entry* entry = entryOf(picture);
  return entry != nullptr ? std::string(entry->subject) : std::string();
}

}  // namespace veridraw::pictures
