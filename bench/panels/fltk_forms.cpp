#include <FL/Fl.H>
#include <FL/Fl_Box.H>
#include <FL/Fl_Check_Button.H>
#include <FL/Fl_Choice.H>
#include <FL/Fl_Double_Window.H>
#include <FL/Fl_Input.H>
#include <FL/Fl_RGB_Image.H>
#include <FL/Fl_Scroll.H>
#include <FL/fl_draw.H>
// Has macros with common names, so it comes behind everything else of FLTK.
#include <FL/x.H>
#undef Bool
#undef None
#undef Status

#include <algorithm>
#include <chrono>
#include <vector>

#include "panels/contenders.h"
#include "panels/shown_data.h"
#include "panels/workloads.h"

namespace qrn::bench {
namespace {

constexpr int kWidth = 800, kHeight = 600, kRowHeight = 28, kEditorHeight = 24, kGap = 6;
constexpr int kIconRoom = 20, kUnitRoom = 50, kBarRoom = 24;

// FLTK wants bytes in the order red, green, blue, opacity.
struct FltkIcon {
  explicit FltkIcon(Icon which) {
    for (const std::uint32_t pixel : iconPixels(which)) {
      for (const int shift : {16, 8, 0, 24}) bytes.push_back(static_cast<unsigned char>(pixel >> shift));
    }
  }
  std::vector<unsigned char> bytes;
  Fl_RGB_Image image{bytes.data(), kIconSize, kIconSize, 4};
};

class CountingScroll final : public Fl_Scroll {
 public:
  using Fl_Scroll::Fl_Scroll;
  void draw() override {
    Fl_Scroll::draw();
    ++paints;
  }
  int paints = 0;
};

/// A widget for each part of each row. FLTK fits no columns: the form measures its captions and places its
/// widgets.
class FltkForm final : public Form {
 public:
  explicit FltkForm(int rows)
      : window_(kWidth, kHeight, "form"), scroll_(new CountingScroll(0, 0, kWidth, kHeight)) {
    scroll_->type(Fl_Scroll::VERTICAL);
    scroll_->begin();
    rows_.reserve(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) addRow(row);
    scroll_->end();
    window_.end();
    layOut();
    window_.show();
    paint();
  }

  void paint() override {
    const auto start = std::chrono::steady_clock::now();
    while (painted_ == scroll_->paints) {
      Fl::check();
      if (std::chrono::steady_clock::now() - start > std::chrono::minutes(1)) fail("nothing was painted");
    }
    painted_ = scroll_->paints;
    XSync(fl_display, 0);
  }
  void settle() override {
    for (int i = 0; i < 5; ++i) Fl::check();
    painted_ = scroll_->paints;
    XSync(fl_display, 0);
  }
  bool run(double seconds, int timesASecond, const std::function<void()>& tick) override {
    struct Timer {
      const std::function<void()>& tick;
      double interval;
      static void due(void* self) {
        const auto& timer = *static_cast<Timer*>(self);
        timer.tick();
        Fl::repeat_timeout(timer.interval, due, self);
      }
    } timer{tick, 1.0 / timesASecond};
    Fl::add_timeout(timer.interval, Timer::due, &timer);
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (std::chrono::steady_clock::now() < end) Fl::wait(0.02);
    Fl::remove_timeout(Timer::due, &timer);
    return true;
  }

  void setCaption(int row, const std::string& caption) override {
    rows_[static_cast<std::size_t>(row)].caption->copy_label(caption.c_str());
    layOut();
  }
  int captionWidth() const override { return rows_[0].caption->w(); }
  void write(int row, int generation) override {
    Fl_Widget* editor = rows_[static_cast<std::size_t>(row)].editor;
    switch (kindOf(row)) {
      case Kind::Number: static_cast<Fl_Input*>(editor)->value(numberText(row, generation).c_str()); break;
      case Kind::Choice: static_cast<Fl_Choice*>(editor)->value(choiceOf(row, generation)); break;
      case Kind::Flag: static_cast<Fl_Check_Button*>(editor)->value(flagOf(row, generation)); break;
      case Kind::Hexadecimal:
        static_cast<Fl_Input*>(editor)->value(hexadecimalText(row, generation).c_str());
        break;
    }
  }
  void blink(int row) override {
    blinking_ = row == 0 ? !blinking_ : blinking_;
    Fl_Box& status = *rows_[static_cast<std::size_t>(row)].status;
    status.image(blinking_ ? square() : triangle());
    status.redraw();
  }

  int pages() const override { return height() / scroll_->h() + 1; }
  void toTop() override { scroll_->scroll_to(0, 0); }
  bool pageDown(int pages) override {
    const int last = std::max(0, height() - scroll_->h());
    if (scroll_->yposition() >= last) return false;
    scroll_->scroll_to(0, std::min(last, scroll_->yposition() + pages * scroll_->h()));
    return true;
  }

 private:
  struct Row {
    Fl_Box* caption;
    Fl_Widget* editor;
    Fl_Box* mark;
    Fl_Box* unit;
    Fl_Box* status;
  };

  static Fl_RGB_Image& disc() {
    static FltkIcon icon(Icon::Disc);
    return icon.image;
  }
  static Fl_RGB_Image& triangle() {
    static FltkIcon icon(Icon::Triangle);
    return icon.image;
  }
  static Fl_RGB_Image& square() {
    static FltkIcon icon(Icon::Square);
    return icon.image;
  }

  static Fl_Widget* editorOf(int row) {
    switch (kindOf(row)) {
      case Kind::Choice: {
        static Fl_Menu_Item choices[kChoiceCount + 1] = {};
        for (int i = 0; i < kChoiceCount; ++i) choices[i].text = kChoices[i];
        auto* box = new Fl_Choice(0, 0, 1, 1);
        box->menu(choices);
        return box;
      }
      case Kind::Flag: return new Fl_Check_Button(0, 0, 1, 1);
      default: return new Fl_Input(0, 0, 1, 1);
    }
  }

  void addRow(int row) {
    Row made{new Fl_Box(0, 0, 1, 1), editorOf(row), new Fl_Box(0, 0, 1, 1),
             new Fl_Box(0, 0, 1, 1, unitOf(row)), new Fl_Box(0, 0, 1, 1)};
    made.caption->copy_label(captionOf(row).c_str());
    for (Fl_Box* text : {made.caption, made.unit}) text->align(FL_ALIGN_LEFT | FL_ALIGN_INSIDE);
    made.mark->image(disc());
    made.status->image(row / 4 % 2 == 0 ? triangle() : square());
    rows_.push_back(made);
    write(row, 0);
  }

  void layOut() {
    fl_font(FL_HELVETICA, FL_NORMAL_SIZE);
    int widest = 0;
    for (const Row& row : rows_) {
      int width = 0, height = 0;
      fl_measure(row.caption->label(), width, height, 0);
      widest = std::max(widest, width);
    }
    const int right = scroll_->x() + scroll_->w() - kBarRoom;
    const int status = right - kIconRoom, unit = status - kUnitRoom, mark = unit - kIconRoom;
    const int caption = scroll_->x() + kGap, editor = caption + widest + kGap;
    int y = scroll_->y() + 2 - scroll_->yposition();
    for (const Row& row : rows_) {
      row.caption->resize(caption, y, widest, kEditorHeight);
      row.editor->resize(editor, y, mark - kGap - editor, kEditorHeight);
      row.mark->resize(mark, y, kIconRoom, kEditorHeight);
      row.unit->resize(unit, y, kUnitRoom, kEditorHeight);
      row.status->resize(status, y, kIconRoom, kEditorHeight);
      y += kRowHeight;
    }
    scroll_->init_sizes();
    scroll_->redraw();
  }

  int height() const { return static_cast<int>(rows_.size()) * kRowHeight; }

  Fl_Double_Window window_;
  CountingScroll* scroll_;  // belongs to the window
  std::vector<Row> rows_;
  int painted_ = 0;
  bool blinking_ = false;
};

}  // namespace

Contender fltkForms() {
  Fl::visual(FL_DOUBLE | FL_INDEX);
  return {"fltk", "xcb", [](const FormOptions& options) { return std::make_unique<FltkForm>(options.rows); }};
}

}  // namespace qrn::bench
