// The documents shown in place on the forms: small pages of notes, each with
// a coloured heading, read by no logic.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>
#include <string_view>

namespace veridraw::gui {

// Paints the document of that name ("document-lotto" and so on); returns
// false, painting nothing, for a name that isn't a document.
bool paintDocument(QPainter& painter, const QRectF& area, std::string_view name);
// The heading and the text of the document of that name, as one would read
// them out; empty for a name that isn't a document.
QString documentWords(std::string_view name);

}  // namespace veridraw::gui
