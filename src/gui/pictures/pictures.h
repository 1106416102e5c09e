// The pictures of the forms, drawn in code and chosen by the name that a
// control's design gives them ("lotto", "strike", "document-notes", ...). A
// name that isn't known gets a plain decorative panel.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>
#include <string_view>

namespace veridraw::gui {

void paintPicture(QPainter& painter, const QRectF& area, std::string_view name);
// What the picture shows, in a few words, for a screen reader.
QString pictureWords(std::string_view name);

}  // namespace veridraw::gui
