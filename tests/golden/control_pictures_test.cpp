#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <span>

#include "golden/comparison.h"
#include "golden/golden_sheet.h"
#include "golden/palettes.h"
#include "stack/QRNDisplayStack.h"
#include "tooltip/QRNToolTip.h"

namespace qrn::golden {
namespace {

/// A control on a window of its own.
template <class T>
class Shown {
 public:
  Shown(int width, int height) : canvas_(platform_.widget(*control_)) {
    canvas_->resize(width, height);
    canvas_->show();
  }

  T& control() { return *control_; }
  QImage picture() { return canvas_->grab().toImage().convertToFormat(QImage::Format_RGB32); }

 private:
  qt::QtPlatform platform_;
  qt::QtSite site_{platform_};
  host::Owned<T> control_ = host::create<T>(site_);
  std::unique_ptr<QWidget> canvas_;
};

// ---- rows ----

struct RowOf {
  const char* label;
  qrnValueType type;
  const char* unit;
  void (*fill)(clsQRNParam&);
};

void addEntries(QRNEdit& row, std::initializer_list<const char*> names) {
  for (const char* name : names) row.SetValueNames(row.ValueCount(), name);
}

clsQRNParam& addRow(QRNDisplay& panel, const RowOf& wanted) {
  const std::shared_ptr<clsQRNParam> item = panel.Items().AddParameter("", wanted.type);
  item->Control().SetLabelText(wanted.label);
  item->Control().SetUnitText(wanted.unit);
  wanted.fill(*item);
  return *item;
}

void addRows(QRNDisplay& panel, std::span<const RowOf> rows) {
  for (const RowOf& row : rows) addRow(panel, row);
}

void addAction(QRNDisplay& panel, const char* caption, ddtypeAction type) {
  panel.Items().AddAction("", type)->Control().SetCaption(caption);
}

void addFooter(QRNDisplay& panel, std::initializer_list<const char*> captions) {
  for (const char* caption : captions) panel.Buttons().AddButton("", caption);
}

/// As wide as captions and units need; values have the rest.
void layOut(QRNDisplay& panel) { panel.SetColumnLayout(0, 1, 0, 0); }

void setNumber(clsQRNParam& item, double value, const char* format) {
  item.Control().SetValueFormat(format);
  item.Control().SetValueAlignment(host::kAlignRight);
  item.SetParamValue(value);
}

const RowOf kTag{"Tag", qrnTypeString, "", [](clsQRNParam& item) { item.SetParamValue("PT-101"); }};
const RowOf kDamping{"Damping", qrnTypeDouble, "s", [](clsQRNParam& item) {
                       setNumber(item, 1.5, "0.00");
                       item.SetParamState(qrnStateChanged);
                     }};
const RowOf kPressure{"Pressure", qrnTypeDouble, "bar", [](clsQRNParam& item) {
                        setNumber(item, 4.217, "0.000");
                        item.SetParamState(qrnStateDynamic | qrnStateReadOnly);
                      }};
const RowOf kUpper{"Upper range value", qrnTypeDouble, "bar", [](clsQRNParam& item) {
                     item.Control().SetValueRule("0..10");
                     setNumber(item, 25, "0.0");
                     item.SetParamState(qrnStateRangeError);
                   }};
const RowOf kTransfer{"Transfer function", qrnTypeList, "", [](clsQRNParam& item) {
                        addEntries(item.Control(), {"Linear", "Square root", "Table"});
                        item.SetParamValue(1);
                      }};
const RowOf kLocal{"Local operation", qrnTypeBoolean, "",
                   [](clsQRNParam& item) { item.SetParamValue(true); }};
const RowOf kAlarms{"Alarms", qrnTypeBitfield, "", [](clsQRNParam& item) {
                      addEntries(item.Control(), {"Sensor failure", "Range exceeded", "Self test"});
                      item.SetParamValue("011");
                    }};

QImage pictureOfDisplay() {
  ShownPanel shown(480, 376);
  QRNDisplay& panel = shown.panel();
  panel.SetTitle("Basic setup");
  for (const RowOf* row : {&kTag, &kPressure, &kDamping, &kUpper, &kTransfer, &kLocal, &kAlarms})
    addRow(panel, *row);
  addAction(panel, "Adjust the zero point", ddtypeMethod);
  addAction(panel, "Diagnosis", ddtypeMenu);
  addFooter(panel, {"OK", "Apply", "Cancel"});
  shown.picture();
  layOut(panel);
  return shown.picture();
}

// ---- a row ----

QImage rowsWithoutPanel(std::span<const RowOf> rows, int height) {
  ShownPanel shown(440, height);
  QRNDisplay& panel = shown.panel();
  panel.SetBorderStyle(qrnEdgeNone);
  panel.SetTitleStyle(qrnTitleNone);
  addRows(panel, rows);
  shown.picture();
  layOut(panel);
  return shown.picture();
}

template <int state>
RowOf inState(const char* label, const char* unit = "mA") {
  return {label, qrnTypeDouble, unit, [](clsQRNParam& item) {
            setNumber(item, 4, "0.00");
            item.SetParamState(static_cast<qrnParamState>(state));
          }};
}

QImage pictureOfRow() {
  const RowOf rows[] = {
      {"Text", qrnTypeString, "", [](clsQRNParam& item) { item.SetParamValue("PT-101"); }},
      {"Password", qrnTypeString, "",
       [](clsQRNParam& item) {
         item.Control().SetPassword(true);
         item.SetParamValue("secret");
       }},
      {"Date", qrnTypeDate, "",
       [](clsQRNParam& item) {
         item.Control().SetValueFormat("yyyy-mm-dd");
         item.SetParamValue(45000);
       }},
      {"Hexadecimal", qrnTypeHexadecimal, "", [](clsQRNParam& item) { item.SetParamValue(48879); }},
      kTransfer,
      kLocal,
      kAlarms,
      inState<qrnStateNormal>("Nothing special"),
      inState<qrnStateInitValue>("Initial value"),
      inState<qrnStateChanged>("Changed"),
      inState<qrnStateDynamic>("Live"),
      inState<qrnStateDynOffline>("Live, without connection"),
      inState<qrnStateReadOnly>("Read-only"),
      inState<qrnStateNeeded>("To be filled in"),
      inState<qrnStateRangeError>("Out of range"),
      inState<qrnStateError>("Wrong input"),
      inState<qrnStateOtherError>("Another error"),
  };
  return rowsWithoutPanel(rows, 504);
}

// ---- the others ----

QImage pictureOfStack() {
  Shown<QRNDisplayStack> shown(480, 320);
  QRNDisplayStack& stack = shown.control();
  const RowOf first[] = {kTag};
  const RowOf second[] = {kDamping, kTransfer};
  const RowOf third[] = {kPressure, inState<qrnStateNeeded>("Reference", "bar")};
  addRows(*stack.AddPage("", "Device", false), first);
  addRows(*stack.AddPage("", "Basic setup", false), second);
  QRNDisplay& top = *stack.AddPage("", "Adjust the zero point", true);
  addRows(top, third);
  addFooter(top, {"OK", "Cancel"});
  layOut(top);
  return shown.picture();
}

/// Beside the row that it is about.
QImage pictureOfToolTip() {
  ShownPanel shown(480, 180);
  QRNDisplay& panel = shown.panel();
  panel.SetTitle("Basic setup");
  const RowOf rows[] = {kTag, kDamping, kPressure};
  addRows(panel, rows);
  shown.picture();
  layOut(panel);
  panel.DisplayToolTip(Variant(2), 6)->SetTextRTF(R"({\rtf1\ansi\deff0{\fonttbl{\f0 DejaVu Sans;}}
{\colortbl ;\red0\green0\blue160;}
\pard\b\fs22 Damping\b0\fs18\par
\pard Smooths the output with a \i time constant\i0 . The larger it is,\par
\pard{\*\pn\pnlvlblt}\li240\fi-240 the \b calmer\b0  is the output;\par
\pard{\*\pn\pnlvlblt}\li240\fi-240 the \b later\b0  it follows the pressure.\par
\pard From \cf1 0.1 s\cf0  to \cf1 60 s\cf0 .\par
})");
  return shown.picture();
}

QImage pictureOfButton(qrnButtonMode mode, void (*apply)(QRNMenuItem&)) {
  ShownPanel shown(172, 36);
  QRNDisplay& panel = shown.panel();
  panel.SetBorderStyle(qrnEdgeNone);
  panel.SetTitleStyle(qrnTitleNone);
  for (const auto set : {&QRNDisplay::SetLeftMargin, &QRNDisplay::SetTopMargin, &QRNDisplay::SetRightMargin,
                         &QRNDisplay::SetBottomMargin})
    (panel.*set)(2);
  QRNMenuItem& button = panel.Items().AddAction("", ddtypeMethod)->Control();
  button.SetCaption("Zero point");
  button.SetButtonMode(mode);
  shown.picture();
  apply(button);
  return shown.picture();
}

QImage pictureOfButtons() {
  Sheet sheet({"qrnbuttonNone", "qrnButtonFlat", "qrnButtonEmbossed"}, 172);
  const auto add = [&](const char* name, void (*apply)(QRNMenuItem&)) {
    QList<QImage> row;
    for (const qrnButtonMode mode : {qrnbuttonNone, qrnButtonFlat, qrnButtonEmbossed})
      row.append(pictureOfButton(mode, apply));
    sheet.addRow(name, row, 36);
  };
  add("usual", [](QRNMenuItem&) {});
  add("hovered", [](QRNMenuItem& button) { hover(button); });
  add("pressed", [](QRNMenuItem& button) { press(button); });
  add("disabled", [](QRNMenuItem& button) {
    button.SetAutoShadeIcon(true);
    button.SetEnabled(false);
  });
  return sheet.picture();
}

/// In the row that makes it.
QImage pictureOfEditor(const RowOf& row, int height) { return rowsWithoutPanel({&row, 1}, height); }

class ControlPicture : public testing::Test {
 protected:
  ControlPicture() { QApplication::setPalette(lightPalette()); }
  ~ControlPicture() override { QApplication::setPalette(usual_); }

 private:
  const QPalette usual_ = QApplication::palette();
};

TEST_F(ControlPicture, OfThePanel) {
  EXPECT_EQ(compareWithKept(pictureOfDisplay(), "QRNDisplay", "docs/controls"), "");
}
TEST_F(ControlPicture, OfTheStack) {
  EXPECT_EQ(compareWithKept(pictureOfStack(), "QRNDisplayStack", "docs/controls"), "");
}
TEST_F(ControlPicture, OfRowsOfEveryTypeAndState) {
  EXPECT_EQ(compareWithKept(pictureOfRow(), "QRNEdit", "docs/controls"), "");
}
TEST_F(ControlPicture, OfActionButtonsInEveryMode) {
  EXPECT_EQ(compareWithKept(pictureOfButtons(), "QRNMenuItem", "docs/controls"), "");
}
TEST_F(ControlPicture, OfTheToolTip) {
  EXPECT_EQ(compareWithKept(pictureOfToolTip(), "QRNToolTip", "docs/controls"), "");
}
TEST_F(ControlPicture, OfTheCheckBox) {
  EXPECT_EQ(compareWithKept(pictureOfEditor(kLocal, 32), "QRNCheck", "docs/controls"), "");
}
TEST_F(ControlPicture, OfTheDropList) {
  EXPECT_EQ(compareWithKept(pictureOfEditor(kTransfer, 32), "QRNDropList", "docs/controls"), "");
}
TEST_F(ControlPicture, OfTheBitList) {
  EXPECT_EQ(compareWithKept(pictureOfEditor(kAlarms, 64), "QRNBitList", "docs/controls"), "");
}

}  // namespace
}  // namespace qrn::golden
