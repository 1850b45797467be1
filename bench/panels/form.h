#pragma once

#include <functional>
#include <memory>
#include <string>

namespace qrn::bench {

/// A form that one of the contenders shows in a window of 800 by 600.
class Form {
 public:
  Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  /// Delivers what is due until the window has been painted once more, and the display has done its part.
  virtual void paint() = 0;
  /// Delivers whatever is still due.
  virtual void settle() = 0;
  /// Calls `tick` so many times a second while the event loop runs for so many seconds; false where there is
  /// none.
  virtual bool run(double seconds, int timesASecond, const std::function<void()>& tick) = 0;

  /// Fits the caption column to all captions as well.
  virtual void setCaption(int row, const std::string& caption) = 0;
  virtual int captionWidth() const = 0;
  /// Lays out a form in which nothing has changed; false where there is nothing of the kind.
  virtual bool layOutAgain() { return false; }
  virtual void write(int row, int generation) = 0;
  /// The second icon becomes the other one of two.
  virtual void blink(int row) = 0;

  virtual int pages() const = 0;
  virtual void toTop() = 0;
  /// False at the bottom already.
  virtual bool pageDown(int pages) = 0;
};

struct FormOptions {
  int rows = 100;
  bool dynamic = false;  // values that tick, and are shown so
};

/// Who shows forms, and on what.
struct Contender {
  std::string name;
  std::string display;
  /// Builds a form, lays it out and shows it; it has been painted for the first time on return.
  std::function<std::unique_ptr<Form>(const FormOptions&)> show;
};

}  // namespace qrn::bench
