#include "screen/picture.h"

namespace veridraw {

namespace {

// The names, in the order of the enum.
constexpr std::array<std::string_view, 17> kNames{"",
                                                  "lotto",
                                                  "strike",
                                                  "powerball",
                                                  "notice",
                                                  "mark",
                                                  "coins",
                                                  "money",
                                                  "lotto-balls",
                                                  "lotto-ticket",
                                                  "strike-balls",
                                                  "strike-ticket",
                                                  "document-lotto",
                                                  "document-strike",
                                                  "document-powerball",
                                                  "document-notes",
                                                  "document-contact"};
static_assert(kNames.size() == kAllPictures.size() + 1, "a name for every picture and for None");

}  // namespace

std::string_view pictureName(Picture picture) {
  return kNames[static_cast<std::size_t>(picture)];
}

}  // namespace veridraw
