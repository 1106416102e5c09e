// Every picture that a form of the program names is one that the pictures
// library draws and can name for a screen reader.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "pictures/pictures.h"
#include "program/program.h"
#include "screen/application.h"
#include "support/recording_canvas.h"
#include "support/test_support.h"

namespace veridraw {
namespace {

constexpr std::array kForms{"Veridraw7a", "Veridraw7d", "Veridraw7f",
                            "Veridraw7b", "Veridraw7c", "Veridraw7e"};

TEST(FormPictures, EveryPictureOfEveryFormIsDrawnAndNamed) {
  testing::TemporaryDirectory dir;
  testing::QueuedDialogs dialogs;
  Application program{dialogs, dir.path()};
  addVeridrawForms(program);
  int pictured = 0;
  for (const char* name : kForms) {
    for (const ControlDesign& design : program.form(name).design().controls) {
      const std::string control = std::string(name) + "." + design.name;
      // An image or a document object is nothing but its picture.
      if (design.kind == ControlKind::Image || design.kind == ControlKind::Document) {
        EXPECT_NE(design.picture, Picture::None) << control;
      }
      if (design.picture == Picture::None) continue;
      ++pictured;
      EXPECT_NE(std::find(kAllPictures.begin(), kAllPictures.end(), design.picture),
                kAllPictures.end())
          << control;
      testing::RecordingCanvas canvas;
      const double pixels = 15.0;  // twips
      pictures::drawPicture(canvas, {0, 0, design.width / pixels, design.height / pixels},
                            design.picture);
      EXPECT_FALSE(canvas.drawn.empty()) << control;
      EXPECT_FALSE(pictures::pictureSubject(design.picture).empty()) << control;
    }
  }
  // The games, the notices, the marks, the documents and the decoration of
  // the ticket screens.
  EXPECT_EQ(pictured, 46);
}

}  // namespace
}  // namespace veridraw
