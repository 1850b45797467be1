#include "base/weak_ref.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace qrn {
namespace {

struct Thing {
  int number = 7;
  Anchor& anchor() { return anchor_; }

 private:
  Anchor anchor_;
};

struct WeakRefs : testing::Test {
  std::unique_ptr<Thing> thing = std::make_unique<Thing>();
};

TEST_F(WeakRefs, ReferUntilTheirTargetGoes) {
  const WeakRef<Thing> ref(thing.get());
  EXPECT_EQ(ref.get(), thing.get());
  EXPECT_EQ(ref->number, 7);
  thing.reset();
  EXPECT_FALSE(ref);
  EXPECT_EQ(ref.get(), nullptr);
}

TEST_F(WeakRefs, MadeOfNothingReferToNothing) {
  EXPECT_FALSE(WeakRef<Thing>());
  EXPECT_FALSE(WeakRef<Thing>(nullptr));
  WeakRef<Thing> copy = WeakRef<Thing>(nullptr);
  EXPECT_FALSE(copy);
}

TEST_F(WeakRefs, AllLoseATargetAtOnceInWhateverOrderTheyCame) {
  std::vector<WeakRef<Thing>> refs;
  for (int i = 0; i < 40; ++i) refs.emplace_back(thing.get());  // growing copies them about
  refs.erase(refs.begin() + 3, refs.begin() + 9);
  for (const auto& ref : refs) EXPECT_EQ(ref.get(), thing.get());
  thing.reset();
  for (const auto& ref : refs) EXPECT_EQ(ref.get(), nullptr);
}

TEST_F(WeakRefs, LeaveTheOthersConnectedWhenTheyGoFirstMiddleOrLast) {
  for (int gone = 0; gone < 3; ++gone) {
    auto target = std::make_unique<Thing>();
    std::unique_ptr<WeakRef<Thing>> refs[3];
    for (auto& ref : refs) ref = std::make_unique<WeakRef<Thing>>(target.get());
    refs[gone].reset();
    target.reset();
    for (const auto& ref : refs) EXPECT_FALSE(ref && *ref) << gone;
  }
}

TEST_F(WeakRefs, AreCopiedWithTheirTargetAndOutliveTheOriginal) {
  auto original = std::make_unique<WeakRef<Thing>>(thing.get());
  const WeakRef<Thing> copy(*original);
  original.reset();
  EXPECT_EQ(copy.get(), thing.get());
  thing.reset();
  EXPECT_FALSE(copy);
}

TEST_F(WeakRefs, ChangeTheirTargetWhenAssigned) {
  auto other = std::make_unique<Thing>();
  other->number = 9;
  WeakRef<Thing> ref(thing.get());
  ref = WeakRef<Thing>(other.get());
  thing.reset();
  ASSERT_TRUE(ref);
  EXPECT_EQ(ref->number, 9);
  WeakRef<Thing>& same = ref;
  ref = same;
  EXPECT_EQ(ref.get(), other.get());
  ref = WeakRef<Thing>();
  EXPECT_FALSE(ref);
  other.reset();
}

TEST_F(WeakRefs, ADeadOneCanBeGivenALivingTarget) {
  WeakRef<Thing> first(thing.get()), second(thing.get());
  thing.reset();
  auto other = std::make_unique<Thing>();
  first = WeakRef<Thing>(other.get());
  second = first;
  EXPECT_EQ(second.get(), other.get());
  other.reset();
  EXPECT_FALSE(first || second);
}

TEST_F(WeakRefs, KeepToTheirOwnTargetWhenItIsCopied) {
  const WeakRef<Thing> ref(thing.get());
  auto copy = std::make_unique<Thing>(*thing);
  const WeakRef<Thing> ofCopy(copy.get());
  *copy = *thing;
  EXPECT_EQ(ofCopy.get(), copy.get());
  thing.reset();
  EXPECT_FALSE(ref);
  EXPECT_EQ(ofCopy.get(), copy.get());
}

TEST_F(WeakRefs, MayBeDestroyedByTheirTargetsOwner) {
  struct Node {
    Thing thing;
    WeakRef<Thing> self{&thing};
  };
  auto node = std::make_unique<Node>();
  EXPECT_TRUE(node->self);
  node.reset();

  struct Reversed {
    std::unique_ptr<WeakRef<Thing>> later;
    Thing thing;
  };
  auto reversed = std::make_unique<Reversed>();
  reversed->later = std::make_unique<WeakRef<Thing>>(&reversed->thing);
  EXPECT_TRUE(*reversed->later);
  reversed.reset();
}

}  // namespace
}  // namespace qrn
