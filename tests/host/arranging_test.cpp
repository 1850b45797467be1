#include <algorithm>
#include <random>

#include "host/label.h"
#include "test_control.h"

namespace qrn::test {
namespace {

/// Puts its one label at a place that depends on its own width, and counts how often it does.
class Arranged final : public TestControl {
 public:
  using TestControl::TestControl;

  host::Label label;
  int arranged = 0;
  bool fails = false;

 protected:
  void initialize() override { contain(label, *this, "label"); }
  void resize() override { arrangeLater(); }
  void arrangeInside() override {
    ++arranged;
    if (fails) raiseRunTimeError(kOverflow);
    label.Move(Width() / 2, 3, 40, 13);
  }
};

class Arranging : public SurfaceTest {
 protected:
  Arranging() : inner(*new Arranged(diary, "inner")) {
    surface().controls().add(host::Owned<host::Control>(&inner), "inner", surface());
    inner.Move(10, 20, 100, 30);
  }
  headless::HeadlessPeer& canvas() { return *static_cast<headless::HeadlessPeer*>(surface().peer()); }

  Arranged& inner;
};

TEST_F(Arranging, WaitsUntilSomebodyAsksWhereAPartIs) {
  EXPECT_EQ(inner.arranged, 0);
  EXPECT_EQ(inner.label.Left(), 50);
  EXPECT_EQ(inner.arranged, 1);
  EXPECT_EQ(inner.label.Top(), 3);
  EXPECT_EQ(inner.arranged, 1) << "nothing has changed since";
}

TEST_F(Arranging, HappensOnceHoweverOftenTheSizeHasChanged) {
  for (const double width : {60, 70, 80}) inner.SetWidth(width);
  EXPECT_EQ(inner.label.Left(), 40);
  EXPECT_EQ(inner.arranged, 1);
}

TEST_F(Arranging, IsDoneForThePainterAndForTheMouse) {
  headless::RecordingSurface target(platform, {200, 150});
  surface().paintTree(target);
  EXPECT_EQ(inner.arranged, 1);
  inner.SetWidth(60);
  EXPECT_EQ(surface().input().hit({45, 25}), &inner.label);
  EXPECT_EQ(inner.arranged, 2);
}

TEST_F(Arranging, GoesFromTheOutsideInAsThePartsDependOnWhatTheyLieIn) {
  auto* const deep = new Arranged(diary, "deep");
  inner.controls().add(host::Owned<host::Control>(deep), "deep", inner);
  deep->SetWidth(20);
  const int before = inner.arranged;
  inner.SetWidth(200);
  deep->SetWidth(30);
  EXPECT_EQ(deep->label.Left(), 15);
  EXPECT_EQ(inner.arranged, before + 1);
}

TEST_F(Arranging, HasThePlacePaintedAgainAtOnceAndNotWhenItIsDone) {
  surface().realise();
  inner.label.Left();
  canvas().invalidated.clear();
  inner.SetWidth(80);
  const auto asked = canvas().invalidated.size();
  EXPECT_GT(asked, 0u);
  inner.label.Left();
  EXPECT_EQ(canvas().invalidated.size(), asked);
}

TEST_F(Arranging, ThatFailsLeavesAContainerWhosePartsArePaintedAgain) {
  surface().realise();
  inner.label.Left();
  inner.fails = true;
  inner.SetWidth(80);
  EXPECT_EQ(errorOf([&] { inner.label.Left(); }), kOverflow);
  inner.fails = false;
  canvas().invalidated.clear();
  inner.label.SetTop(10);
  EXPECT_FALSE(canvas().invalidated.empty());
  inner.SetWidth(60);
  EXPECT_EQ(inner.label.Left(), 30);
}

TEST_F(Arranging, OfWhatGoesIsNotDoneAnyMore) {
  int last = -1;
  diary.listener = [&](const std::string&) { last = inner.arranged; };
  surface().controls().remove("inner");
  EXPECT_LE(last, 0);
}

TEST_F(Arranging, OfManyPaintsTheContainerOnceAtTheEnd) {
  auto& other = surface().addControl("other", {0, 60, 50, 20});
  surface().realise();
  canvas().invalidated.clear();
  {
    const host::ContainerControl::Rearrangement rearrangement(surface());
    inner.SetTop(40);
    other.SetTop(90);
    EXPECT_TRUE(canvas().invalidated.empty());
    EXPECT_EQ(other.Top(), 90);
  }
  EXPECT_EQ(canvas().invalidated.size(), 1u);
  EXPECT_EQ(canvas().invalidated.front(), surface().onSurface());
}

// ---- many of them ----

/// A hundred labels at any place, so that some lie on others.
class ManyControls : public SurfaceTest {
 protected:
  void SetUp() override {
    for (int i = 0; i < 100; ++i) {
      labels.push_back(&surface().add<host::Label>("label" + std::to_string(i), place()));
      labels.back()->SetCaption(std::to_string(i));
    }
  }
  double number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); }
  Rect place() { return {number(180), number(140), 20 + number(30), 1 + number(40)}; }

  /// Asked of each one.
  host::Control* uppermostAt(Point at) {
    const auto found = std::find_if(surface().contained().rbegin(), surface().contained().rend(),
                                    [&](host::Control* one) { return one->bounds().contains(at); });
    return found == surface().contained().rend() ? nullptr : *found;
  }
  void expectEveryPointFound(const char* after) {
    for (double y = 0; y < 150; y += 7) {
      for (double x = 0; x < 200; x += 7) {
        ASSERT_EQ(surface().childAt({x, y}), uppermostAt({x, y})) << after << " at " << x << "," << y;
      }
    }
  }

  std::mt19937 random{7};
  std::vector<host::Label*> labels;
};

TEST_F(ManyControls, AreFoundWhereTheyLieHoweverTheyWereMoved) {
  expectEveryPointFound("the start");
  for (int i = 0; i < 10; ++i) {
    const Rect to = place();
    labels[static_cast<std::size_t>(number(100))]->Move(to.left, to.top, to.width, to.height);
  }
  expectEveryPointFound("moving some");
  surface().bringToFront(*labels[3]);
  expectEveryPointFound("bringing one to the front");
  surface().controls().remove("label50");
  expectEveryPointFound("removing one");
  surface().add<host::Label>("new", {0, 0, 200, 20});
  expectEveryPointFound("adding one");
}

TEST_F(ManyControls, ArePaintedFromTheBottomUpWhereverTheTargetShowsThem) {
  headless::RecordingSurface whole(platform, {200, 150}), strip(platform, {200, 30});
  surface().paintTree(whole);
  surface().paintTree(strip);
  Heard expected;
  for (const host::Control* one : surface().contained()) {
    if (one->bounds().intersects({0, 0, 200, 30})) expected.push_back(one->Name().substr(5));
  }
  Heard seen;
  for (const std::string& operation : strip.operations()) {
    if (!operation.starts_with("text")) continue;
    const auto from = operation.find('"') + 1;
    seen.push_back(operation.substr(from, operation.rfind('"') - from));
  }
  EXPECT_EQ(seen, expected);
  EXPECT_LT(strip.operations().size(), whole.operations().size());
}

}  // namespace
}  // namespace qrn::test
