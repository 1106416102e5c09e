// The classic edges of the controls and the mark of the focus, drawn on a
// canvas that records them.
#include <gtest/gtest.h>

#include "pictures/classic_edges.h"
#include "support/recording_canvas.h"

namespace veridraw {
namespace {

using pictures::Colour;
using pictures::PixelRect;
using pictures::Point;
using testing::Drawn;
using testing::RecordingCanvas;
namespace classic = pictures::classic;

struct Band {
  PixelRect area;
  Colour colour;

  bool operator==(const Band&) const = default;
};

std::vector<Band> bands(const RecordingCanvas& canvas) {
  std::vector<Band> found;
  for (const Drawn& entry : canvas.drawn) {
    EXPECT_EQ(entry.kind, Drawn::Kind::FillPixels);
    const Point from = entry.points.front();
    const Point to = entry.points.back();
    found.push_back({{int(from.x), int(from.y), int(to.x - from.x), int(to.y - from.y)},
                     std::get<Colour>(entry.fill)});
  }
  return found;
}

TEST(ClassicEdges, AFrameIsFourBandsOfOnePixel) {
  RecordingCanvas canvas;
  classic::drawFrame(canvas, {10, 20, 30, 15}, classic::Shade::Light, classic::Shade::Shadow);
  EXPECT_EQ(bands(canvas), (std::vector<Band>{{{10, 20, 30, 1}, classic::kLight},
                                              {{10, 20, 1, 15}, classic::kLight},
                                              {{10, 34, 30, 1}, classic::kShadow},
                                              {{39, 20, 1, 15}, classic::kShadow}}));
}

TEST(ClassicEdges, ARaisedEdgeIsLitFromTheTopLeft) {
  RecordingCanvas canvas;
  classic::drawEdge(canvas, {0, 0, 73, 25}, classic::Edge::Raised);
  const std::vector<Band> drawn = bands(canvas);
  ASSERT_EQ(drawn.size(), 8u);
  // The outer frame white above, black below; the inner one light grey and grey.
  EXPECT_EQ(drawn[0], (Band{{0, 0, 73, 1}, classic::kHighlight}));
  EXPECT_EQ(drawn[3], (Band{{72, 0, 1, 25}, classic::kDarkShadow}));
  EXPECT_EQ(drawn[4], (Band{{1, 1, 71, 1}, classic::kLight}));
  EXPECT_EQ(drawn[7], (Band{{71, 1, 1, 23}, classic::kShadow}));
}

TEST(ClassicEdges, ASunkenEdgeIsItsOppositeAndAPressedOneIsDark) {
  RecordingCanvas sunken;
  classic::drawEdge(sunken, {0, 0, 40, 20}, classic::Edge::Sunken);
  const std::vector<Band> inside = bands(sunken);
  ASSERT_EQ(inside.size(), 8u);
  EXPECT_EQ(inside[0].colour, classic::kShadow);
  EXPECT_EQ(inside[2].colour, classic::kHighlight);
  EXPECT_EQ(inside[4].colour, classic::kDarkShadow);
  EXPECT_EQ(inside[6].colour, classic::kLight);

  RecordingCanvas pressed;
  classic::drawEdge(pressed, {0, 0, 40, 20}, classic::Edge::Pressed);
  const std::vector<Band> held = bands(pressed);
  ASSERT_EQ(held.size(), 8u);
  for (std::size_t i = 0; i < 4; ++i)
    EXPECT_EQ(held[i].colour, classic::kDarkShadow);
  for (std::size_t i = 4; i < 8; ++i)
    EXPECT_EQ(held[i].colour, classic::kShadow);
}

TEST(ClassicEdges, TheBandsOfAnEdgeAreItsTwoFramesOuterFirst) {
  constexpr PixelRect area{5, 6, 40, 20};
  constexpr auto edge = classic::edgeBands(area, classic::Edge::Sunken);
  const auto outer = classic::frameBands(area, classic::Shade::Shadow, classic::Shade::Highlight);
  const auto inner =
      classic::frameBands({6, 7, 38, 18}, classic::Shade::DarkShadow, classic::Shade::Light);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(edge[i].area, outer[i].area);
    EXPECT_EQ(edge[i].shade, outer[i].shade);
    EXPECT_EQ(edge[i + 4].area, inner[i].area);
    EXPECT_EQ(edge[i + 4].shade, inner[i].shade);
  }
}

TEST(ClassicEdges, TheFocusIsADottedFrame) {
  RecordingCanvas canvas;
  classic::drawFocusMark(canvas, {4, 4, 65, 17});
  ASSERT_EQ(canvas.drawn.size(), 1u);
  EXPECT_EQ(canvas.drawn[0].kind, Drawn::Kind::DottedFrame);
  EXPECT_EQ(canvas.drawn[0].stroke->colour, classic::kDarkShadow);
  EXPECT_EQ(canvas.drawn[0].points.front(), (Point{4, 4}));
}

}  // namespace
}  // namespace veridraw
