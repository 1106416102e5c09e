#include "gui/pictures.h"

#include <array>
#include <string_view>
#include <utility>

#include "gui/decor_pictures.h"
#include "gui/document_pictures.h"
#include "gui/game_pictures.h"
#include "gui/ticket_pictures.h"

namespace veridraw::gui {

namespace {

using Painter = void (*)(QPainter&, const QRectF&);

constexpr std::array<std::pair<std::string_view, Painter>, 11> kPictures{{
    {"lotto", paintLotto},
    {"strike", paintStrike},
    {"powerball", paintPowerBall},
    {"notice", paintNotice},
    {"mark", paintMark},
    {"coins", paintCoins},
    {"money", paintMoney},
    {"lotto-balls", paintDrawMachine},
    {"lotto-ticket", paintTicketSlip},
    // The Strike screen's decoration: its game picture and a ticket slip.
    {"strike-balls", paintStrike},
    {"strike-ticket", paintTicketSlip},
}};

Painter pictureNamed(std::string_view name) {
  for (const auto& [pictureName, paint] : kPictures)
    if (pictureName == name) return paint;
  return paintPlainPanel;
}

}  // namespace

void paintPicture(QPainter& painter, const QRectF& area, std::string_view name) {
  if (area.width() < 1 || area.height() < 1) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setClipRect(area);
  if (!paintDocument(painter, area, name)) pictureNamed(name)(painter, area);
  painter.restore();
}

}  // namespace veridraw::gui
