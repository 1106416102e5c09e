#include "pictures/pictures.h"

#include <array>
#include <string_view>
#include <utility>

#include "pictures/decor_pictures.h"
#include "pictures/document_pictures.h"
#include "pictures/game_pictures.h"
#include "pictures/ticket_pictures.h"

namespace veridraw::gui {

namespace {

using Painter = void (*)(QPainter&, const QRectF&);

// A drawing, and what it shows in a few words for those who can't see it.
struct Drawing {
  std::string_view name;
  Painter paint;
  const char* words;
};

constexpr std::array<Drawing, 11> kDrawings{{
    {"lotto", paintLotto, "Lotto"},
    {"strike", paintStrike, "Strike"},
    {"powerball", paintPowerBall, "PowerBall"},
    {"notice", paintNotice, nullptr},
    {"mark", paintMark, "Veridraw mark"},
    {"coins", paintCoins, "Coins"},
    {"money", paintMoney, "Banknotes"},
    {"lotto-balls", paintDrawMachine, "Lotto draw machine"},
    {"lotto-ticket", paintTicketSlip, "Lotto ticket"},
    // The Strike screen's decoration: its game picture and a ticket slip.
    {"strike-balls", paintStrike, "Strike"},
    {"strike-ticket", paintTicketSlip, "Strike ticket"},
}};

const Drawing* drawingNamed(std::string_view name) {
  for (const Drawing& drawing : kDrawings)
    if (drawing.name == name) return &drawing;
  return nullptr;
}

}  // namespace

void paintPicture(QPainter& painter, const QRectF& area, Picture picture) {
  if (picture == Picture::None || area.width() < 1 || area.height() < 1) return;
  const std::string_view name = pictureName(picture);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setClipRect(area);
  if (!paintDocument(painter, area, name)) {
    const Drawing* drawing = drawingNamed(name);
    (drawing != nullptr ? drawing->paint : paintPlainPanel)(painter, area);
  }
  painter.restore();
}

QString pictureWords(Picture picture) {
  const std::string_view name = pictureName(picture);
  if (const QString words = documentWords(name); !words.isEmpty()) return words;
  if (name == "notice") return noticeWords();
  const Drawing* drawing = drawingNamed(name);
  return drawing != nullptr ? QString::fromLatin1(drawing->words) : QStringLiteral("Picture");
}

}  // namespace veridraw::gui
