// The pictures drawn on a canvas that records them: every picture draws, what
// the known ones show, and their subjects for a screen reader.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "pictures/pictures.h"
#include "support/recording_canvas.h"

namespace veridraw {
namespace {

using pictures::Colour;
using pictures::Rect;
using testing::Drawn;
using testing::RecordingCanvas;

constexpr Rect kArea{10, 20, 105, 49};

RecordingCanvas drawn(Picture picture, const Rect& area = kArea) {
  RecordingCanvas canvas;
  pictures::drawPicture(canvas, area, picture);
  return canvas;
}

std::string nameOf(Picture picture) {
  return std::string(pictureName(picture));
}

bool within(const pictures::Point& point, const Rect& area, double slack) {
  return point.x >= area.left() - slack && point.x <= area.right() + slack &&
         point.y >= area.top() - slack && point.y <= area.bottom() + slack;
}

// The fills of the entries of one kind that are shaded from the centre out.
std::size_t shaded(const RecordingCanvas& canvas, Drawn::Kind kind) {
  return static_cast<std::size_t>(
      std::count_if(canvas.drawn.begin(), canvas.drawn.end(), [kind](const Drawn& entry) {
        return entry.kind == kind && std::holds_alternative<pictures::RadialGradient>(entry.fill);
      }));
}

TEST(Pictures, EveryPictureDrawsInsideItsArea) {
  for (const Picture picture : kAllPictures) {
    const RecordingCanvas canvas = drawn(picture);
    EXPECT_GE(canvas.drawn.size(), 3u) << nameOf(picture);
    for (const Drawn& entry : canvas.drawn)
      for (const pictures::Point& point : entry.points)
        // A shadow may reach a few pixels past the area, which the face clips.
        EXPECT_TRUE(within(point, kArea, 3)) << nameOf(picture) << " " << point.x << "," << point.y;
  }
}

TEST(Pictures, NoPictureDrawsNothing) {
  EXPECT_TRUE(drawn(Picture::None).drawn.empty());
  EXPECT_EQ(pictures::pictureSubject(Picture::None), "");
}

TEST(Pictures, EveryPictureHasANameAndASubject) {
  std::set<std::string> names;
  for (const Picture picture : kAllPictures) {
    EXPECT_FALSE(pictureName(picture).empty());
    EXPECT_TRUE(names.insert(nameOf(picture)).second) << nameOf(picture);
    EXPECT_FALSE(pictures::pictureSubject(picture).empty()) << nameOf(picture);
  }
  EXPECT_EQ(names.size(), kAllPictures.size());
}

TEST(Pictures, TheSubjectsSayWhatThePicturesShow) {
  EXPECT_EQ(pictures::pictureSubject(Picture::Lotto), "Lotto");
  EXPECT_EQ(pictures::pictureSubject(Picture::StrikeTicket), "Strike ticket");
  EXPECT_EQ(pictures::pictureSubject(Picture::Notice),
            "Veridraw is free software under the GNU GPL, version 3 or later");
  EXPECT_EQ(pictures::pictureSubject(Picture::DocumentLotto),
            "Lotto: Six numbers from 1 to 40 and a Bonus number.");
}

TEST(Pictures, LottoShowsItsNameOverSixNumberedBalls) {
  const RecordingCanvas canvas = drawn(Picture::Lotto);
  EXPECT_EQ(canvas.count(Drawn::Kind::RoundedRectangle), 1u);
  EXPECT_EQ(shaded(canvas, Drawn::Kind::Ellipse), 6u);
  EXPECT_EQ(canvas.texts(), (std::vector<std::string>{"LOTTO", "7", "12", "19", "23", "31", "40"}));
}

TEST(Pictures, StrikeShowsFourBallsInOrderWithArrowsBetweenThem) {
  const RecordingCanvas canvas = drawn(Picture::Strike);
  EXPECT_EQ(shaded(canvas, Drawn::Kind::Ellipse), 4u);
  EXPECT_EQ(canvas.texts(), (std::vector<std::string>{"STRIKE", "1", "2", "3", "4"}));
  // Each arrow is a head and a shaft.
  EXPECT_EQ(canvas.count(Drawn::Kind::Polygon), 3u);
  EXPECT_EQ(canvas.count(Drawn::Kind::Line), 3u);
  // The balls stand from left to right.
  std::vector<double> lefts;
  for (const Drawn& entry : canvas.drawn)
    if (entry.kind == Drawn::Kind::Ellipse) lefts.push_back(entry.points.front().x);
  EXPECT_TRUE(std::is_sorted(lefts.begin(), lefts.end()));
}

TEST(Pictures, TheStrikeScreenShowsTheStrikePicture) {
  EXPECT_EQ(drawn(Picture::StrikeBalls).texts(), drawn(Picture::Strike).texts());
}

TEST(Pictures, ADocumentHasItsHeadingAndItsWrappedBody) {
  const RecordingCanvas canvas = drawn(Picture::DocumentStrike, {0, 0, 145, 89});
  EXPECT_EQ(canvas.texts(),
            (std::vector<std::string>{"Strike", "Four numbers from 1 to 40, in the order drawn."}));
  EXPECT_EQ(canvas.count(Drawn::Kind::WrappedText), 1u);
  // The heading band in the document's colour.
  ASSERT_EQ(canvas.count(Drawn::Kind::Fill), 1u);
}

TEST(Pictures, ATooSmallDocumentLeavesItsBodyOut) {
  const RecordingCanvas canvas = drawn(Picture::DocumentNotes, {0, 0, 41, 25});
  EXPECT_EQ(canvas.texts(), (std::vector<std::string>{"Notes"}));
}

TEST(Pictures, TheNoticeShortensItsWordsOnANarrowButton) {
  // 13-pixel letters of 7.8 pixels, legible down to 10 pixels: the whole
  // sentence needs some 385 pixels at the least.
  EXPECT_EQ(drawn(Picture::Notice, {0, 0, 420, 19}).texts().back(),
            "Veridraw is free software under the GNU GPL, version 3 or later");
  EXPECT_EQ(drawn(Picture::Notice, {0, 0, 250, 19}).texts().back(),
            "Free software under the GNU GPL 3+");
  EXPECT_EQ(drawn(Picture::Notice, {0, 0, 170, 19}).texts().back(), "Free software, GNU GPL");
}

TEST(Pictures, TheTicketSlipHasEighteenBoxesOfWhichSixAreMarked) {
  const RecordingCanvas canvas = drawn(Picture::LottoTicket, {0, 0, 65, 41});
  const pictures::Fill pen = Colour(30, 60, 170);
  std::size_t boxes = 0;
  std::size_t marked = 0;
  for (const Drawn& entry : canvas.drawn) {
    if (entry.kind != Drawn::Kind::Rectangle || !entry.stroke) continue;
    ++boxes;
    if (entry.fill == pen) ++marked;
  }
  // The slip itself and its boxes.
  EXPECT_EQ(boxes, 1u + 18u);
  EXPECT_EQ(marked, 6u);
}

TEST(Pictures, AFittedTextTakesTheLargestSizeThatFits) {
  // "LOTTO" in the title of a Lotto picture 105 pixels wide: the title's
  // 99 x 18 pixels take capitals of 25 pixels at most (0.7 x 25 < 18).
  const RecordingCanvas canvas = drawn(Picture::Lotto);
  const Drawn& title = canvas.drawn[1];
  ASSERT_EQ(title.text, "LOTTO");
  EXPECT_EQ(title.font.pixels, 25);
  EXPECT_TRUE(title.font.bold);
}

}  // namespace
}  // namespace veridraw
