#include "host/class_table_entries.h"

#include <algorithm>

#include "test_control.h"

namespace qrn::test {
namespace {

enum class Mode : std::int32_t { Plain = 0, Fancy = 2 };

/// A control with a property of every type.
class Gauge final : public host::UserControl {
 public:
  std::string_view typeName() const override { return "Gauge"; }
  const host::ClassTable& classTable() const override { return table(); }
  static const host::ClassTable& table();

  bool Locked() const { return locked_; }
  void SetLocked(bool locked) { set(locked_, locked, "Locked"); }
  std::int16_t Steps() const { return steps_; }
  void SetSteps(std::int16_t steps) {
    set(steps_, steps, "Steps");
    if (tellsOfSteps) propertyChanged("Steps");
  }
  std::int32_t Range() const { return range_; }
  void SetRange(std::int32_t range) {
    if (range < 0) raiseRunTimeError(kInvalidPropertyValue, "Gauge");
    // As a setter may well do: half of it is done when it fails.
    if (range == 13) {
      range_ = range;
      raiseRunTimeError(kOverflow, "Gauge");
    }
    set(range_, range, "Range");
  }
  Mode Style() const { return style_; }
  void SetStyle(Mode style) { set(style_, style, "Style"); }
  float Ratio() const { return ratio_; }
  void SetRatio(float ratio) { set(ratio_, ratio, "Ratio"); }
  double Level() const { return level_; }
  void SetLevel(double level) { set(level_, level, "Level"); }
  const std::string& Title() const { return title_; }
  void SetTitle(const std::string& title) { set(title_, title, "Title"); }
  const host::FontPtr& Font() const { return font(); }
  void SetFont(host::FontPtr font) { setFont(std::move(font)); }
  host::Color BackColor() const { return backColor(); }
  void SetBackColor(host::Color color) { setBackColor(color); }
  const host::PicturePtr& Icon() const { return icon_; }
  void SetIcon(host::PicturePtr icon) { set(icon_, icon, "Icon"); }
  const host::PicturePtr& Photo() const { return photo_; }
  void SetPhoto(host::PicturePtr photo) { set(photo_, photo, "Photo"); }
  std::int32_t Gap() const { return gap_; }
  void SetGap(std::int32_t gap) { set(gap_, gap, "Gap"); }
  std::int32_t Depth() const { return inner_.depth; }
  void SetDepth(std::int32_t depth) { set(inner_.depth, depth, "Depth"); }
  const Variant& Value() const { return value_; }
  void SetValue(const Variant& value) { set(value_, value, "Value"); }
  std::int32_t Count() const { return 3; }

  bool tellsOfSteps = false;
  /// The setters that ran, in order.
  Heard written;

 private:
  template <class T>
  void set(T& field, const T& value, const char* name) {
    field = value;
    written.emplace_back(name);
  }

  bool locked_ = false;
  std::int16_t steps_ = 10;
  std::int32_t range_ = 100;
  Mode style_ = Mode::Plain;
  float ratio_ = 0.5F;
  double level_ = 0;
  std::string title_;
  host::PicturePtr icon_;
  host::PicturePtr photo_;
  std::int32_t gap_ = -1;
  struct Inner {
    std::int32_t depth = 2;
  } inner_;
  Variant value_;
};

const host::ClassTable& Gauge::table() {
  using host::Default;
  using host::field;
  using host::setter;
  using C = Gauge;
  static const host::ClassTable table{
      "Gauge",
      "Test.Gauge",
      {
          setter<&C::Locked, &C::SetLocked>("Locked", 1, false),
          setter<&C::Steps, &C::SetSteps>("Steps", 2, 10),
          setter<&C::Range, &C::SetRange>("Range", 3, 100),
          setter<&C::Style, &C::SetStyle>("Style", 4, Mode::Plain),
          setter<&C::Ratio, &C::SetRatio>("Ratio", 5, 0.5),
          field<&C::Level, &C::SetLevel, &C::level_>("Level", 6, 0),
          host::property<&C::Title, &C::SetTitle>("Title", 7).stored("Caption", ""),
          setter<&C::Font, &C::SetFont>("Font", 8, Default::ambientFont()),
          setter<&C::BackColor, &C::SetBackColor>("BackColor", 9, Default::ambientBackColor()),
          setter<&C::Icon, &C::SetIcon>("Icon", 10, Variant()),
          setter<&C::Value, &C::SetValue>("Value", 11, Variant()),
          host::readOnly<&C::Count>("Count", 12),
          host::picture<&C::Photo, &C::SetPhoto>("Photo", 13),
          setter<&C::Gap, &C::SetGap>("Gap", 14, -1).storedAs(host::PropertyType::Integer),
          field<&C::Depth, &C::SetDepth, &C::inner_, &Inner::depth>("Depth", 15, 2),
      },
      {"Title", "Caption", "Range", "Locked", "Steps", "Style", "Ratio", "Level", "Font", "BackColor", "Icon",
       "Value", "Photo", "Gap", "Depth"},
      {},
      {},
      {}};
  return table;
}

class ClassTables : public SurfaceTest {
 protected:
  host::Owned<Gauge> gauge = host::create<Gauge>(site);

  static host::PropertyBag saved(const Gauge& gauge) {
    host::PropertyBag bag;
    gauge.writeProperties(bag);
    return bag;
  }
  static Heard keys(const host::PropertyBag& bag) {
    Heard result;
    for (const auto& item : bag.items()) result.push_back(item.key);
    return result;
  }
};

TEST_F(ClassTables, FindAPropertyByItsNameInAnyCase) {
  ASSERT_TRUE(Gauge::table().find("TITLE"));
  EXPECT_EQ(Gauge::table().find("TITLE")->id, 7);
  EXPECT_EQ(Gauge::table().find("Caption"), nullptr) << "a key is no name";
}

TEST_F(ClassTables, KnowTheTypeOfEveryProperty) {
  using enum host::PropertyType;
  std::vector<host::PropertyType> types;
  for (const host::Property& one : Gauge::table().properties) types.push_back(one.type);
  EXPECT_EQ(types,
            (std::vector<host::PropertyType>{Boolean, Integer, Long, Long, Single, Double, String, Font,
                                             Color, Picture, Variant, Long, Picture, Long, Long}));
}

TEST_F(ClassTables, ReadAndWriteThroughTheMembers) {
  const auto& table = Gauge::table();
  table.find("Range")->write(*gauge, 55);
  EXPECT_EQ(gauge->Range(), 55);
  EXPECT_EQ(table.find("Range")->read(*gauge), Variant(55));
  table.find("Range")->write(*gauge, "77");
  EXPECT_EQ(gauge->Range(), 77) << "a late-bound caller's text is converted";
  table.find("Style")->write(*gauge, 2);
  EXPECT_EQ(gauge->Style(), Mode::Fancy);
  EXPECT_EQ(table.find("Count")->read(*gauge), Variant(3));
  EXPECT_EQ(table.find("Count")->write, nullptr);
}

TEST_F(ClassTables, RefuseValuesThatDoNotFitTheMember) {
  const auto& table = Gauge::table();
  EXPECT_EQ(errorOf([&] { table.find("Steps")->write(*gauge, 32768); }), 6);
  EXPECT_EQ(errorOf([&] { table.find("Range")->write(*gauge, "wide"); }), 13);
  EXPECT_EQ(errorOf([&] { table.find("Ratio")->write(*gauge, 1e300); }), 6);
  EXPECT_EQ(errorOf([&] { table.find("Icon")->write(*gauge, std::make_shared<host::Font>()); }), 13);
  EXPECT_EQ(errorOf([&] { table.find("Font")->write(*gauge, 5); }), 13);
}

TEST_F(ClassTables, SaveNothingOfAFreshControl) { EXPECT_EQ(keys(saved(*gauge)), Heard{}); }

TEST_F(ClassTables, SaveNothingOfAFreshControlOnASiteWithAFontAndColoursOfItsOwn) {
  site.ambientProperties.font = std::make_shared<host::Font>("Serif", 20);
  site.ambientProperties.backColor = host::rgb(1, 2, 3);
  EXPECT_EQ(keys(saved(*host::create<Gauge>(site))), Heard{});
}

TEST_F(ClassTables, SaveWhatDiffersFromItsDefaultInTheOrderOfTheProperties) {
  gauge->SetValue(Variant(3.5));
  gauge->SetTitle("Tank");
  gauge->SetLocked(true);
  gauge->SetSteps(10);
  EXPECT_EQ(keys(saved(*gauge)), (Heard{"Locked", "Caption", "Value"}));
}

TEST_F(ClassTables, RestoreWhatWasSaved) {
  gauge->SetLocked(true);
  gauge->SetSteps(-3);
  gauge->SetRange(7);
  gauge->SetStyle(Mode::Fancy);
  gauge->SetRatio(0.25F);
  gauge->SetLevel(1.0 / 3);
  gauge->SetTitle("\u00e4 \"b\"");
  gauge->SetFont(std::make_shared<host::Font>("Serif", 12, true));
  gauge->SetBackColor(host::systemColor(host::SystemColor::Highlight));
  gauge->SetIcon(std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>{{1, 1, {5}}}));
  gauge->SetValue(Date{1.5});
  const auto bag = host::PropertyBag::fromText(saved(*gauge).toText());
  const auto back = host::create<Gauge>(site, &bag);
  EXPECT_TRUE(back->Locked());
  EXPECT_EQ(back->Steps(), -3);
  EXPECT_EQ(back->Range(), 7);
  EXPECT_EQ(back->Style(), Mode::Fancy);
  EXPECT_EQ(back->Ratio(), 0.25F);
  EXPECT_EQ(back->Level(), 1.0 / 3);
  EXPECT_EQ(back->Title(), "\u00e4 \"b\"");
  EXPECT_EQ(*back->Font(), *gauge->Font());
  EXPECT_EQ(back->BackColor(), host::systemColor(host::SystemColor::Highlight));
  EXPECT_EQ(*back->Icon(), *gauge->Icon());
  EXPECT_EQ(back->Value(), Variant(Date{1.5}));
}

TEST_F(ClassTables, RestoreInTheReadingOrderAndFieldsWithoutTheirSetters) {
  gauge->written.clear();
  host::restoreProperties(*gauge, host::PropertyBag());
  EXPECT_EQ(gauge->written,
            (Heard{"Title", "Range", "Locked", "Steps", "Style", "Ratio", "Icon", "Value", "Photo", "Gap"}));
}

TEST_F(ClassTables, IgnoreKeysThatNobodyKnows) {
  host::PropertyBag bag;
  bag.writeProperty("Colour", "green");
  bag.writeProperty("CAPTION", "Tank");
  host::restoreProperties(*gauge, bag);
  EXPECT_EQ(gauge->Title(), "Tank");
}

TEST_F(ClassTables, RefuseABagWithAWrongValueNamingTheKeyAndLeaveTheControlAsItWas) {
  struct Wrong {
    const char* key;
    Variant value;
    const char* why;
  };
  const Wrong wrongs[] = {
      {"Steps", 40000, "Property \"Steps\": Overflow"},
      {"Range", "five", "Property \"Range\": Type mismatch"},
      {"Range", 1e10, "Property \"Range\": Overflow"},
      {"Range", Null{}, "Property \"Range\": Invalid use of Null"},
      {"Ratio", 1e300, "Property \"Ratio\": Overflow"},
      {"Level", "high", "Property \"Level\": Type mismatch"},
      {"Caption", 5, "Property \"Caption\": Type mismatch"},
      {"Font", 5, "Property \"Font\": Type mismatch"},
      {"Icon", std::make_shared<host::Font>(), "Property \"Icon\": Type mismatch"},
      {"Gap", 32768, "Property \"Gap\": Overflow"},
      {"Locked", "yes", "Property \"Locked\": Type mismatch"},
  };
  for (const Wrong& wrong : wrongs) {
    host::PropertyBag bag;
    bag.writeProperty("Caption", "changed");
    bag.writeProperty("Value", 5);
    bag.writeProperty(wrong.key, wrong.value);
    gauge->written.clear();
    EXPECT_EQ(errorOf([&] { host::restoreProperties(*gauge, bag); }), 321) << wrong.why;
    EXPECT_EQ(refusal([&] { host::restoreProperties(*gauge, bag); }), wrong.why);
    EXPECT_EQ(gauge->written, Heard{});
    EXPECT_EQ(gauge->Title(), "");
  }
}

TEST_F(ClassTables, NameTheKeyAlsoWhenItIsTheSetterThatRefuses) {
  host::PropertyBag bag;
  bag.writeProperty("Range", -1);
  EXPECT_EQ(errorOf([&] { host::restoreProperties(*gauge, bag); }), 321);
  EXPECT_EQ(refusal([&] { host::restoreProperties(*gauge, bag); }),
            "Property \"Range\": Invalid property value");
}

TEST_F(ClassTables, SetTheControlBackWhenASetterRefusesInTheMiddle) {
  const auto icon = std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>{{1, 1, {5}}});
  gauge->SetTitle("before");
  gauge->SetRange(55);
  gauge->SetLevel(2.5);
  gauge->SetGap(-40'000);
  gauge->SetIcon(icon);
  gauge->SetFont(std::make_shared<host::Font>("Serif", 12));
  for (const std::int32_t refused : {-1, 13}) {
    host::PropertyBag bag;
    bag.writeProperty("Caption", "after");
    bag.writeProperty("Range", refused);
    bag.writeProperty("Level", 7.5);
    EXPECT_EQ(errorOf([&] { host::restoreProperties(*gauge, bag); }), 321);
    EXPECT_EQ(gauge->Title(), "before");
    EXPECT_EQ(gauge->Range(), 55);
    EXPECT_EQ(gauge->Level(), 2.5);
    EXPECT_EQ(gauge->Gap(), -40'000) << "what no bag could keep comes back as well";
    EXPECT_EQ(gauge->Icon(), icon);
    EXPECT_EQ(*gauge->Font(), host::Font("Serif", 12));
  }
}

// A listener that throws what is no run-time error is no reason to leave half of a bag behind.
TEST_F(ClassTables, SetTheControlBackWhateverIsThrown) {
  struct Interrupted {};
  class Interrupting final : public headless::HeadlessSite {
   public:
    using HeadlessSite::HeadlessSite;
    void propertyChanged(host::UserControl&, std::string_view key) override {
      if (std::exchange(armed, false) && key == "Steps") throw Interrupted();
    }
    bool armed = false;
  } interrupting(platform);
  const auto other = host::create<Gauge>(interrupting);
  other->tellsOfSteps = true;
  host::PropertyBag bag;
  bag.writeProperty("Caption", "after");
  bag.writeProperty("Steps", std::int16_t{3});
  interrupting.armed = true;
  EXPECT_THROW(host::restoreProperties(*other, bag), Interrupted);
  EXPECT_EQ(other->Title(), "");
  EXPECT_EQ(other->Steps(), 10);
}

TEST_F(ClassTables, KeepANumberInTheBitsOfItsStoredType) {
  gauge->SetGap(7);
  EXPECT_EQ(saved(*gauge).toText(), "QRNV16Controls2 properties 1\nGap = Integer 7\n");
  const auto bag = host::PropertyBag::fromText("QRNV16Controls2 properties 1\nGap = Long 8\n");
  host::restoreProperties(*gauge, bag);
  EXPECT_EQ(gauge->Gap(), 8);
}

TEST_F(ClassTables, RefuseToSaveANumberThatItsStoredTypeCanNotHoldAndLeaveTheBagAsItWas) {
  for (const std::int32_t gap : {32768, -32769, 1'000'000}) {
    gauge->SetGap(gap);
    gauge->SetTitle("Tank");
    host::PropertyBag bag;
    bag.writeProperty("Caption", "older");
    EXPECT_EQ(errorOf([&] { gauge->writeProperties(bag); }), 6) << gap;
    EXPECT_EQ(refusal([&] { gauge->writeProperties(bag); }), "Property \"Gap\": Overflow");
    EXPECT_EQ(bag.toText(), "QRNV16Controls2 properties 1\nCaption = \"older\"\n");
  }
  for (const std::int32_t gap : {32767, -32768}) {
    gauge->SetGap(gap);
    EXPECT_EQ(saved(*gauge).readProperty("Gap"), Variant(static_cast<std::int16_t>(gap)));
  }
}

TEST_F(ClassTables, KeepAPictureWithoutPixelsNoMoreThanNone) {
  const auto empty = std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>{});
  gauge->SetPhoto(empty);
  EXPECT_EQ(keys(saved(*gauge)), Heard{});
  gauge->SetIcon(empty);
  EXPECT_EQ(keys(saved(*gauge)), Heard{"Icon"}) << "where the two differ, both are kept";
  gauge->SetPhoto(std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>{{1, 1, {5}}}));
  EXPECT_EQ(keys(saved(*gauge)), (Heard{"Icon", "Photo"}));
}

TEST_F(ClassTables, ReachAFieldInsideAnother) {
  gauge->written.clear();
  host::PropertyBag bag;
  bag.writeProperty("Depth", 9);
  host::restoreProperties(*gauge, bag);
  EXPECT_EQ(gauge->Depth(), 9);
  EXPECT_EQ(std::count(gauge->written.begin(), gauge->written.end(), "Depth"), 0);
}

TEST_F(ClassTables, ARefusedBagMakesNoControl) {
  host::PropertyBag bag;
  bag.writeProperty("Range", "five");
  EXPECT_EQ(errorOf([&] { host::create<Gauge>(site, &bag); }), 321);
}

}  // namespace
}  // namespace qrn::test
