// The pictures that a design can put on an image, a document object or a
// picture button: a closed set, so that a design naming a picture that doesn't
// exist doesn't compile. What each one looks like is drawn by the pictures
// library (src/pictures/), the same for every face.
#pragma once

#include <array>
#include <string_view>

namespace veridraw {

enum class Picture {
  None,  // no picture: a button with a caption, a label, a box
  // The three games.
  Lotto,
  Strike,
  PowerBall,
  // The owner's notice on a banner, and the program's mark.
  Notice,
  Mark,
  // The prizes of a win.
  Coins,
  Money,
  // The decoration below the grids of the ticket screens.
  LottoBalls,
  LottoTicket,
  StrikeBalls,
  StrikeTicket,
  // Small pages of notes shown in place, read by no logic.
  DocumentLotto,
  DocumentStrike,
  DocumentPowerBall,
  DocumentNotes,
  DocumentContact,
};

// Every picture but None, in the order above.
inline constexpr std::array kAllPictures{
    Picture::Lotto,          Picture::Strike,
    Picture::PowerBall,      Picture::Notice,
    Picture::Mark,           Picture::Coins,
    Picture::Money,          Picture::LottoBalls,
    Picture::LottoTicket,    Picture::StrikeBalls,
    Picture::StrikeTicket,   Picture::DocumentLotto,
    Picture::DocumentStrike, Picture::DocumentPowerBall,
    Picture::DocumentNotes,  Picture::DocumentContact,
};

// The picture's name, as records and messages write it: "lotto", "strike-ticket",
// "document-notes"; "" for None.
std::string_view pictureName(Picture picture);

}  // namespace veridraw
