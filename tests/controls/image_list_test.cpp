#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <vector>

#include "controls/raised.h"
#include "images/QRNImageList.h"
#include "images/built_in_pictures.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

class ImageList : public ::testing::Test {
 protected:
  static qrnImageId number(std::int32_t id) { return static_cast<qrnImageId>(id); }

  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
  host::Owned<QRNImageList> list = host::create<QRNImageList>(site);
};

TEST_F(ImageList, HoldsTheLibrarysOwnPicturesFromTheStart) {
  for (std::int32_t id = 0; id <= qrnImageInformation; ++id) {
    EXPECT_EQ(list->Image(number(id)), builtInPicture(number(id)));
    EXPECT_NE(list->Image(number(id)), nullptr);
  }
  EXPECT_EQ(list->GetNextFreeImageIndex(), 19);
}

TEST_F(ImageList, APictureAtAFreeNumberIsAddedAndNothingTakesItAway) {
  list->SetImage(number(25), builtInPicture(qrnImageInfo));
  EXPECT_EQ(list->Image(number(25)), builtInPicture(qrnImageInfo));
  EXPECT_EQ(list->GetNextFreeImageIndex(), 26);
  list->SetImage(number(25), nullptr);
  EXPECT_EQ(list->GetNextFreeImageIndex(), 19);
}

TEST_F(ImageList, APictureTakesTheOldOnesPlace) {
  list->SetImage(qrnImageFolder, builtInPicture(qrnImageQuestion));
  EXPECT_EQ(list->Image(qrnImageFolder), builtInPicture(qrnImageQuestion));
  EXPECT_EQ(list->GetNextFreeImageIndex(), 19);
}

TEST_F(ImageList, FreedNumbersBelowTheHighestAreNotOfferedAgain) {
  list->SetImage(qrnImageFolder, nullptr);
  EXPECT_EQ(list->GetNextFreeImageIndex(), 19);
  list->SetImage(qrnImageInformation, nullptr);
  EXPECT_EQ(list->GetNextFreeImageIndex(), 18);
}

TEST_F(ImageList, ANumberWithoutPictureRaisesTheErrorOfAMissingElement) {
  list->SetImage(qrnImageFolder, nullptr);
  for (const std::int32_t id : {1, 19, 25, -1}) {
    EXPECT_EQ(raisedBy([&] { list->Image(number(id)); }).number, kControlArrayElementMissing) << id;
  }
}

TEST_F(ImageList, BehindTheHighestNumberThereIsThereIsNoneLeft) {
  list->SetImage(number(2147483647), builtInPicture(qrnImageInfo));
  EXPECT_EQ(raisedBy([&] { list->GetNextFreeImageIndex(); }).number, kOverflow);
}

TEST_F(ImageList, APictureThatSomebodyKeepsOutlivesItsPlace) {
  const host::PicturePtr kept = list->Image(qrnImageFolder);
  list->SetImage(qrnImageFolder, nullptr);
  EXPECT_EQ(kept, builtInPicture(qrnImageFolder));
}

TEST_F(ImageList, WhateverNumbersComeAndGoTheOthersKeepTheirPictures) {
  std::map<std::int32_t, host::PicturePtr> expected;
  for (std::int32_t id = 0; id <= qrnImageInformation; ++id) expected[id] = builtInPicture(number(id));
  for (const std::int32_t id : {-3, 100, 7, 3, -3, 18, 0, 40}) {
    if (expected.erase(id) > 0) {
      list->SetImage(number(id), nullptr);
    } else {
      expected[id] = std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>());
      list->SetImage(number(id), expected[id]);
    }
    for (std::int32_t asked = -5; asked <= 105; ++asked) {
      const auto known = expected.find(asked);
      if (known != expected.end())
        EXPECT_EQ(list->Image(number(asked)), known->second) << asked;
      else
        EXPECT_EQ(raisedBy([&] { list->Image(number(asked)); }).number, kControlArrayElementMissing) << asked;
    }
  }
}

TEST_F(ImageList, NothingAtAFreeNumberChangesNothing) {
  EXPECT_EQ(raisedBy([&] { list->SetImage(number(40), nullptr); }).number, 0);
  EXPECT_EQ(list->GetNextFreeImageIndex(), 19);
}

TEST_F(ImageList, AnEmptyPictureIsAPictureToo) {
  const auto empty = std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>());
  list->SetImage(number(30), empty);
  EXPECT_EQ(list->Image(number(30)), empty);
  EXPECT_EQ(list->GetNextFreeImageIndex(), 31);
}

TEST_F(ImageList, ListsShareNothing) {
  const auto other = host::create<QRNImageList>(site);
  other->SetImage(qrnImageFolder, nullptr);
  EXPECT_EQ(list->Image(qrnImageFolder), builtInPicture(qrnImageFolder));
}

TEST_F(ImageList, LooksLikeAWhiteBoxWithThreeSmallOnes) {
  headless::RecordingSurface surface(platform, {32, 32});
  list->paint(surface, {32, 32});
  EXPECT_EQ(surface.operations("fill"), (Events{"fill 0,0 32x32 #ffffff"}));
  const Events lines = surface.operations("line");
  ASSERT_EQ(lines.size(), 4u * 4u);  // four frames of four lines
  const auto upperEdge = [&](std::size_t frame) { return lines[4 * frame + 1]; };
  EXPECT_EQ(upperEdge(0), "line 0,0 31,0 #000000");
  EXPECT_EQ(upperEdge(1), "line 3,3 8,3 #000000");
  EXPECT_EQ(upperEdge(2), "line 12,3 17,3 #000000");
  EXPECT_EQ(upperEdge(3), "line 21,3 26,3 #000000");
}

}  // namespace
}  // namespace qrn::test
