#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <functional>
#include <map>

#include "accessible_panel.h"

namespace qrn {
namespace {

using Lines = std::vector<std::string>;

std::string roleName(QAccessible::Role role) {
  static const std::map<QAccessible::Role, std::string> names = {
      {QAccessible::Pane, "pane"},          {QAccessible::Grouping, "group"},
      {QAccessible::Button, "button"},      {QAccessible::EditableText, "text"},
      {QAccessible::ComboBox, "combo"},     {QAccessible::CheckBox, "check"},
      {QAccessible::List, "list"},          {QAccessible::ListItem, "entry"},
      {QAccessible::StaticText, "label"},   {QAccessible::Graphic, "picture"},
      {QAccessible::ScrollBar, "scrollbar"}};
  const auto found = names.find(role);
  return found == names.end() ? "other" : found->second;
}

// Checks on its way that parent and index lead back.
Lines treeOf(QAccessibleInterface& part, const std::string& indent = "") {
  Lines lines{indent + roleName(part.role()) + " " + part.text(QAccessible::Name).toStdString()};
  if (const auto value = part.text(QAccessible::Value); !value.isEmpty())
    lines.back() += " = " + value.toStdString();
  for (int i = 0; i < part.childCount(); ++i) {
    QAccessibleInterface* child = part.child(i);
    EXPECT_EQ(child->parent(), &part) << lines.back();
    EXPECT_EQ(part.indexOfChild(child), i) << lines.back();
    EXPECT_EQ(part.child(i), child) << "asked for once more";
    for (std::string& line : treeOf(*child, indent + "  ")) lines.push_back(std::move(line));
  }
  return lines;
}

const Lines kTree = {"pane Basic setup",
                     "  button Maximize",
                     "  button Close",
                     "  group ",
                     "    text Pressure = 1.5",
                     "    button Information",
                     "  group ",
                     "    combo Mode = slow",
                     "      entry slow",
                     "      entry fast",
                     "    button Information",
                     "  group ",
                     "    check Active",
                     "    button Information",
                     "  group ",
                     "    list Alarms",
                     "      entry low",
                     "      entry high",
                     "    button Information",
                     "  button Self test",
                     "  button Apply"};

TEST_F(AccessiblePanelOnQt, ShowsItsWholeTree) { EXPECT_EQ(treeOf(top()), kTree); }

TEST_F(AccessiblePanelOnQt, ShowsTheSameTreeWhicheverEditorIsReal) {
  for (const char* name : {"Pressure", "Mode", "Active", "Alarms", "selfTest"}) {
    panel->SetItemFocus(Variant(std::string(name)));
    settle();
    EXPECT_EQ(treeOf(top()), kTree) << name;
  }
  panel->Buttons().Item(Variant(1))->Control().SetFocus();
  EXPECT_NE(canvas->findChild<QPushButton*>(), nullptr);
  EXPECT_EQ(treeOf(top()), kTree);
}

TEST_F(AccessiblePanelOnQt, MakesNoInterfaceForARowUntilAToolAsks) {
  panel->RemoveControls();
  for (int i = 0; i < 10000; ++i) panel->Items().AddParameter("", qrnTypeString);
  panel->SetTallContent(true);
  panel->LayoutControls(false);
  canvas->repaint();
  EXPECT_EQ(canvas->accessibleParts(), 0U);
  EXPECT_EQ(top().childCount(), 2 + 10000 + 1 + 1);
  EXPECT_EQ(canvas->accessibleParts(), 0U);
  EXPECT_EQ(top().indexOfChild(top().child(2 + 4999)), 2 + 4999);
  EXPECT_EQ(canvas->accessibleParts(), 1U);
}

TEST_F(AccessiblePanelOnQt, ARealEditorStandsForItsRow) {
  row("Pressure").SetFocus();
  auto* line = canvas->findChild<QLineEdit*>();
  ASSERT_NE(line, nullptr);
  QAccessibleInterface* ours = QAccessible::queryAccessibleInterface(line);
  EXPECT_EQ(&editorOf(1), ours);
  EXPECT_EQ(textOf(*ours), "Pressure");
  EXPECT_EQ(ours->parent(), &rowPart(1));
  EXPECT_EQ(ours->object(), line);
  EXPECT_EQ(top().focusChild(), ours);
  EXPECT_TRUE(ours->state().focused);
}

TEST_F(AccessiblePanelOnQt, TheListThatDropsDownIsThatOfTheRow) {
  row("Mode").SetFocus();
  auto* combo = canvas->findChild<QComboBox*>();
  ASSERT_NE(combo, nullptr);
  combo->showPopup();
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(combo->view());
  EXPECT_EQ(textOf(*list), "Mode");
  EXPECT_EQ(list->tableInterface(), nullptr);
  EXPECT_EQ(textOf(*list->child(1)), "fast");
  combo->hidePopup();
}

TEST_F(AccessiblePanelOnQt, TheFocusOnAnActionIsFoundToo) {
  panel->SetItemFocus(Variant("selfTest"));
  ASSERT_NE(top().focusChild(), nullptr);
  EXPECT_EQ(textOf(*top().focusChild()), "Self test");
  EXPECT_TRUE(top().focusChild()->state().focused);
}

TEST_F(AccessiblePanelOnQt, HangsOnTheWidgetAroundIt) {
  EXPECT_EQ(top().parent(), QAccessible::queryAccessibleInterface(window.get()));
  EXPECT_EQ(editorOf(1).window(), window->windowHandle());
}

TEST_F(AccessiblePanelOnQt, PartsLieWhereTheyArePainted) {
  const Rect place = row("Pressure").CurrentEditor()->onSurface();
  const QRect rect = editorOf(1).rect();
  EXPECT_EQ(rect.topLeft(),
            canvas->mapToGlobal(QPoint(static_cast<int>(place.left), static_cast<int>(place.top))));
  EXPECT_EQ(rect.width(), static_cast<int>(place.width));
  QAccessibleInterface* hit = top().childAt(rect.center().x(), rect.center().y());
  ASSERT_EQ(hit, &rowPart(1));
  EXPECT_EQ(hit->childAt(rect.center().x(), rect.center().y()), &editorOf(1));
  EXPECT_EQ(top().childAt(-5000, 0), nullptr);
  QAccessibleInterface& entry = *editorOf(4).child(1);
  EXPECT_EQ(editorOf(4).childAt(entry.rect().center().x(), entry.rect().center().y()), &entry);
}

TEST_F(AccessiblePanelOnQt, StatesAreThoseOfTheRow) {
  EXPECT_TRUE(editorOf(1).state().editable);
  EXPECT_TRUE(editorOf(1).state().focusable);
  EXPECT_TRUE(editorOf(3).state().checkable);
  EXPECT_TRUE(editorOf(2).state().expandable);
  item("Pressure").SetParamState(qrnStateReadOnly);
  EXPECT_TRUE(editorOf(1).state().readOnly);
  EXPECT_FALSE(editorOf(1).state().editable);
  row("Mode").SetEnabled(false);
  EXPECT_TRUE(editorOf(2).state().disabled);
  row("Active").SetVisible(false);
  EXPECT_TRUE(editorOf(3).state().invisible);
  window->hide();
  EXPECT_TRUE(editorOf(1).state().invisible);
}

TEST_F(AccessiblePanelOnQt, AWrongValueIsDescribedAndTheInterfaceLives) {
  row("Pressure").SetValueToolTip("Of the tank");
  editorOf(1).setText(QAccessible::Value, "x");
  EXPECT_EQ(textOf(editorOf(1), QAccessible::Description), "Of the tank\nThe value is of the wrong kind.");
  EXPECT_FALSE(editorOf(1).state().invalid);
}

// ---- what tools do ----

TEST_F(AccessiblePanelOnQt, ButtonsArePressed) {
  std::vector<std::string> events;
  const auto listening = panel->ObjectEvent.connect([&](std::string_view name, host::EventArgs) {
    if (name.ends_with("Click") || name.starts_with("Display")) events.emplace_back(name);
  });
  const auto press = [](QAccessibleInterface& part) {
    part.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  };
  press(*top().child(0));
  press(*top().child(1));
  press(*rowPart(1).child(1));
  press(rowPart(5));
  press(rowPart(6));
  settle();
  EXPECT_EQ(events,
            (Lines{"DisplayMaximize", "DisplayClose", "ParameterIcon2Click", "ActionClick", "ButtonClick"}));
  EXPECT_EQ(rowPart(6).actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
            QStringList("Alt+A"));
}

TEST_F(AccessiblePanelOnQt, AMarkIsToggledAlsoOnTheRealEditor) {
  const QString toggle = QAccessibleActionInterface::toggleAction();
  ASSERT_TRUE(editorOf(3).actionInterface()->actionNames().contains(toggle));
  editorOf(3).actionInterface()->doAction(toggle);
  EXPECT_TRUE(editorOf(3).state().checked);
  EXPECT_TRUE(canvas->findChild<QAbstractButton*>()->isChecked());
  editorOf(4).child(1)->actionInterface()->doAction(toggle);
  EXPECT_TRUE(editorOf(4).child(1)->state().checked);
  EXPECT_EQ(row("Alarms").ValueText(), "10");
}

TEST_F(AccessiblePanelOnQt, AClickOnTheCaptionTogglesTheMarkOfTheRealEditorToo) {
  const Rect caption = row("Active").lblLabel().onSurface();
  QTest::mouseClick(canvas, Qt::LeftButton, Qt::NoModifier,
                    QPoint(static_cast<int>(caption.left) + 3, static_cast<int>(caption.top) + 3));
  EXPECT_EQ(row("Active").ValueText(), "True");
  ASSERT_NE(canvas->findChild<QAbstractButton*>(), nullptr);
  EXPECT_TRUE(canvas->findChild<QAbstractButton*>()->isChecked());
}

TEST_F(AccessiblePanelOnQt, AnEntryIsChosenAlsoOnTheRealEditor) {
  editorOf(2).child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(textOf(editorOf(2), QAccessible::Value), "fast");
  EXPECT_EQ(canvas->findChild<QComboBox*>()->currentText(), "fast");
}

TEST_F(AccessiblePanelOnQt, ALockedEditorOffersOnlyTheFocus) {
  item("Active").SetParamState(qrnStateReadOnly);
  item("Mode").SetParamState(qrnStateReadOnly);
  EXPECT_EQ(editorOf(3).actionInterface()->actionNames(), QStringList());
  EXPECT_EQ(editorOf(2).actionInterface()->actionNames(),
            QStringList(QAccessibleActionInterface::setFocusAction()));
  editorOf(2).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_TRUE(row("Mode").hasFocus());
}

// ---- text ----

TEST_F(AccessiblePanelOnQt, TextIsReadAndWrittenInUnitsOfQt) {
  row("Pressure").SetValueType(qrnTypeString);
  row("Pressure").SetValue("a\U0001F600b");
  QAccessibleTextInterface* text = editorOf(1).textInterface();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->characterCount(), 4);
  EXPECT_EQ(text->text(3, 4), "b");
  EXPECT_EQ(text->text(0, -1), QString::fromUtf8("a\U0001F600b"));
  editorOf(1).editableTextInterface()->insertText(3, "-");
  EXPECT_EQ(row("Pressure").ValueText(), "a\U0001F600-b");
  EXPECT_EQ(canvas->findChild<QLineEdit*>()->text(), QString::fromUtf8("a\U0001F600-b"));
  editorOf(1).textInterface()->setSelection(0, 0, 3);
  int start = 0, end = 0;
  editorOf(1).textInterface()->selection(0, &start, &end);
  EXPECT_EQ(start, 0);
  EXPECT_EQ(end, 3);
  editorOf(1).editableTextInterface()->deleteText(0, 3);
  EXPECT_EQ(row("Pressure").ValueText(), "-b");
}

TEST_F(AccessiblePanelOnQt, ALockedTextIsOnlyRead) {
  item("Pressure").SetParamState(qrnStateReadOnly);
  editorOf(1).editableTextInterface()->replaceText(0, -1, "9");
  EXPECT_EQ(row("Pressure").ValueText(), "1.5");
  EXPECT_EQ(editorOf(1).textInterface()->text(0, -1), "1.5");
}

TEST_F(AccessiblePanelOnQt, APasswordIsNeverTold) {
  row("Pressure").SetValueType(qrnTypeString);
  row("Pressure").SetPassword(true);
  row("Pressure").SetValue("secret");
  for (const bool real : {false, true}) {
    if (real) row("Pressure").SetFocus();
    EXPECT_TRUE(editorOf(1).state().passwordEdit);
    EXPECT_EQ(textOf(editorOf(1), QAccessible::Value), "******");
    EXPECT_EQ(editorOf(1).textInterface()->text(0, 6), "******");
  }
  editorOf(1).editableTextInterface()->insertText(6, "s");
  EXPECT_EQ(row("Pressure").ValueText(), "secrets");
}

TEST_F(AccessiblePanelOnQt, TheScrollBarIsReadAndMoved) {
  for (int i = 0; i < 50; ++i) addRow("Row " + std::to_string(i), qrnTypeString);
  panel->LayoutControls(false);
  QAccessibleInterface& bar = *top().child(top().childCount() - 2);
  ASSERT_EQ(bar.role(), QAccessible::ScrollBar);
  bar.valueInterface()->setCurrentValue(40);
  EXPECT_EQ(panel->ControlsContainer().scrolledBy(), 40);
  EXPECT_EQ(bar.valueInterface()->currentValue().toInt(), 40);
  EXPECT_EQ(bar.valueInterface()->maximumValue().toInt(), panel->sbrVertical().Max());
  EXPECT_TRUE(rowPart(40).state().offscreen);
}

}  // namespace
}  // namespace qrn
