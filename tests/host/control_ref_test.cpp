#include "host/control_ref.h"

#include "host/text_box.h"
#include "test_control.h"

namespace qrn::test {
namespace {

class ControlRefs : public SurfaceTest {};

TEST_F(ControlRefs, NameAControlInAVariant) {
  auto& box = surface().add<host::TextBox>("txt");
  const Variant value = host::referenceTo(box);
  EXPECT_EQ(host::controlIn(value), &box);
  EXPECT_EQ((*value.get<ObjectPtr>())->typeName(), "TextBox");
}

TEST_F(ControlRefs, DoNotKeepTheControl) {
  host::Control& box = surface().controls().add("VB.TextBox", "txt", surface());
  const Variant value = host::referenceTo(box);
  surface().controls().remove("txt");
  EXPECT_EQ(host::controlIn(value), nullptr);
  EXPECT_EQ((*value.get<ObjectPtr>())->typeName(), "Nothing");
}

TEST_F(ControlRefs, AreInNoOtherVariant) {
  const Variant others[] = {Variant(),
                            Variant(Null()),
                            Variant("txt"),
                            Variant(1),
                            Variant(std::make_shared<host::Font>("Sans", 9)),
                            Variant(ObjectPtr())};
  for (const Variant& other : others) EXPECT_EQ(host::controlIn(other), nullptr);
}

}  // namespace
}  // namespace qrn::test
