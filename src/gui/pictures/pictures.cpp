#include "gui/pictures/pictures.h"

#include <array>
#include <string_view>
#include <utility>

#include "gui/pictures/decor_pictures.h"
#include "gui/pictures/document_pictures.h"
#include "gui/pictures/game_pictures.h"
#include "gui/pictures/ticket_pictures.h"

namespace veridraw::gui {

namespace {

using Painter = void (*)(QPainter&, const QRectF&);

// A drawing, and what it shows in a few words for those who can't see it.
struct Picture {
  std::string_view name;
  Painter paint;
  const char* words;
};

constexpr std::array<Picture, 11> kPictures{{
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

const Picture* pictureNamed(std::string_view name) {
  for (const Picture& picture : kPictures)
    if (picture.name == name) return &picture;
  return nullptr;
}

}  // namespace

void paintPicture(QPainter& painter, const QRectF& area, std::string_view name) {
  if (area.width() < 1 || area.height() < 1) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setClipRect(area);
  if (!paintDocument(painter, area, name)) {
    const Picture* picture = pictureNamed(name);
    (picture != nullptr ? picture->paint : paintPlainPanel)(painter, area);
  }
  painter.restore();
}

QString pictureWords(std::string_view name) {
  if (const QString words = documentWords(name); !words.isEmpty()) return words;
  if (name == "notice") return noticeWords();
  const Picture* picture = pictureNamed(name);
  return picture != nullptr ? QString::fromLatin1(picture->words) : QStringLiteral("Picture");
}

}  // namespace veridraw::gui
