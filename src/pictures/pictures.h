// The pictures of the forms, drawn in code, as a control's design names them.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

#include "screen/picture.h"

namespace veridraw::gui {

void paintPicture(QPainter& painter, const QRectF& area, Picture picture);
// What the picture shows, in a few words, for a screen reader.
QString pictureWords(Picture picture);

}  // namespace veridraw::gui
