#include "pictures/document_pictures.h"

#include <algorithm>
#include <array>

#include "pictures/picture_parts.h"

namespace veridraw::pictures {

namespace {

struct Document {
  Picture picture;
  std::string_view heading;
  std::string_view body;
  Colour colour;
};

constexpr std::array kDocuments{
    Document{Picture::DocumentLotto, "Lotto", "Six numbers from 1 to 40 and a Bonus number.",
             Colour(196, 18, 28)},
    Document{Picture::DocumentStrike, "Strike", "Four numbers from 1 to 40, in the order drawn.",
             Colour(20, 60, 150)},
    Document{Picture::DocumentPowerBall, "PowerBall",
             "A Lotto line and one more number from 1 to 8.", Colour(40, 40, 48)},
    Document{Picture::DocumentNotes, "Notes",
             "Type two digits for each number: the cursor moves on by itself. The space bar "
             "steps back.",
             Colour(30, 110, 90)},
    Document{Picture::DocumentContact, "Contact", "Write to us through the issue tracker.",
             Colour(0, 110, 140)},
};

constexpr int kLargestBody = 11;
constexpr int kSmallestBody = 7;

const Document* documentOf(Picture picture) {
  for (const Document& document : kDocuments)
    if (document.picture == picture) return &document;
  return nullptr;
}

// The body in the largest size, from 11 pixels down, at which it fits the box.
void drawBody(Canvas& canvas, const Rect& box, std::string_view text) {
  Font font{kLargestBody, false};
  for (int pixels = kLargestBody; pixels >= kSmallestBody; --pixels) {
    font.pixels = pixels;
    if (canvas.wrappedHeight(box, text, font) <= box.height) break;
  }
  canvas.wrappedText(box, text, font, Colour(30, 30, 30));
}

void drawPage(Canvas& canvas, const Rect& page, const Document& document) {
  const double fold = std::min(page.width, page.height) * 0.16;
  // The shadow, the page with its top right corner folded, and the fold.
  canvas.rectangle(page.translated(2, 2), kNoStroke, Colour(0, 0, 0, 60));
  const Stroke edge{Colour(150, 150, 150), 1};
  canvas.polygon({page.topLeft(),
                  {page.right() - fold, page.top()},
                  {page.right(), page.top() + fold},
                  page.bottomRight(),
                  page.bottomLeft()},
                 edge, kWhiteColour);
  const double band = std::max(10.0, std::min(page.height * 0.3, 18.0));
  const Rect heading{page.left() + 1, page.top() + 1, page.width - fold - 1, band};
  canvas.fill(heading, document.colour);
  canvas.polygon({{page.right() - fold, page.top()},
                  {page.right() - fold, page.top() + fold},
                  {page.right(), page.top() + fold}},
                 edge, Colour(220, 220, 220));
  drawFittedText(canvas, heading.adjusted(4, 2, -4, -2), document.heading, kWhiteColour, true, 13);
  const Rect body{page.left() + 5, heading.bottom() + 3, page.width - 10,
                  page.bottom() - heading.bottom() - 5};
  if (body.height >= kSmallestBody) drawBody(canvas, body, document.body);
}

}  // namespace

bool drawDocument(Canvas& canvas, const Rect& area, Picture picture) {
  const Document* document = documentOf(picture);
  if (document == nullptr) return false;
  drawPage(canvas, area.adjusted(1, 1, -3, -3), *document);
  return true;
}

std::string documentWords(Picture picture) {
  const Document* document = documentOf(picture);
  if (document == nullptr) return {};
  return std::string(document->heading) + ": " + std::string(document->body);
}

}  // namespace veridraw::pictures
