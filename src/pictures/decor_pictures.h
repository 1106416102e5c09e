// The smaller decoration of the forms: the program's mark, the notice banner,
// the coins and the money of a win, and a plain panel for any other picture.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace veridraw::gui {

void paintMark(QPainter& painter, const QRectF& area);
void paintNotice(QPainter& painter, const QRectF& area);
// The owner's notice, the whole sentence.
QString noticeWords();
void paintCoins(QPainter& painter, const QRectF& area);
void paintMoney(QPainter& painter, const QRectF& area);
void paintPlainPanel(QPainter& painter, const QRectF& area);

}  // namespace veridraw::gui
