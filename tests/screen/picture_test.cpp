// The closed set of pictures that a design can name, and their names.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "screen/picture.h"

namespace veridraw {
namespace {

TEST(Picture, EachPictureHasANameOfItsOwn) {
  std::set<std::string> names;
  for (const Picture picture : kAllPictures) {
    const std::string name(pictureName(picture));
    EXPECT_FALSE(name.empty());
    EXPECT_TRUE(names.insert(name).second) << name;
  }
  EXPECT_EQ(pictureName(Picture::None), "");
}

TEST(Picture, TheNamesAreTheOnesTheRecordsWrite) {
  EXPECT_EQ(pictureName(Picture::Lotto), "lotto");
  EXPECT_EQ(pictureName(Picture::PowerBall), "powerball");
  EXPECT_EQ(pictureName(Picture::StrikeTicket), "strike-ticket");
  EXPECT_EQ(pictureName(Picture::DocumentPowerBall), "document-powerball");
  EXPECT_EQ(pictureName(Picture::DocumentContact), "document-contact");
}

}  // namespace
}  // namespace veridraw
