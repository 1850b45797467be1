#include <gtest/gtest.h>

#include <QAccessible>
#include <QWidget>
#include <memory>

#include "library/library.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_site.h"
#include "stack/QRNDisplayStack.h"

namespace qrn {
namespace {

TEST(AccessibleStackOnQt, ShowsPagesAsGroupsThatAModalOneDisables) {
  registerControls();
  qt::QtPlatform platform;
  qt::QtSite site(platform);
  auto stack = host::create<QRNDisplayStack>(site);
  const std::unique_ptr<QWidget> canvas(platform.widget(*stack));
  stack->AddPage("", "Device", false);
  stack->AddPage("", "Discard?", true);
  QAccessibleInterface* top = QAccessible::queryAccessibleInterface(canvas.get());
  EXPECT_EQ(top->role(), QAccessible::Pane);
  ASSERT_EQ(top->childCount(), 2);
  QAccessibleInterface* device = top->child(0);
  QAccessibleInterface* question = top->child(1);
  EXPECT_EQ(device->role(), QAccessible::Grouping);
  EXPECT_EQ(device->text(QAccessible::Name), "Device");
  EXPECT_EQ(question->text(QAccessible::Name), "Discard?");
  EXPECT_TRUE(device->state().disabled);
  EXPECT_FALSE(device->state().modal);
  EXPECT_FALSE(question->state().disabled);
  EXPECT_TRUE(question->state().modal);
  stack->ActivatePage(1);
  EXPECT_EQ(top->childCount(), 1);
  EXPECT_FALSE(device->state().disabled);
  EXPECT_FALSE(question->isValid());
  stack.reset();
}

}  // namespace
}  // namespace qrn
