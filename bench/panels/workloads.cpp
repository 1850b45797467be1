#include "panels/workloads.h"

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include "panels/shown_data.h"

namespace qrn::bench {
namespace {

constexpr int kWrites = 1000;    // of one sample of W3
constexpr int kMostPages = 500;  // of one sample of W4: a longer form is gone through in jumps
constexpr int kPage = 40;        // rows that fill every window
constexpr int kTickingRows = 1000;
constexpr int kTicksASecond = 10;

/// Time that passes, and what of it the process itself takes: less on a busy machine, more where threads
/// help.
struct Moment {
  double time = 0;
  double processor = 0;

  static Moment now() {
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return {std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(),
            static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9};
  }
  friend Moment operator-(const Moment& a, const Moment& b) {
    return {a.time - b.time, a.processor - b.processor};
  }
};

struct Memory {
  double resident = 0;
  double allocated = 0;
};

Memory memory() {
  long pages = 0, resident = 0;
  if (FILE* file = std::fopen("/proc/self/statm", "r")) {
    if (std::fscanf(file, "%ld %ld", &pages, &resident) != 2) resident = 0;
    std::fclose(file);
  }
  const struct mallinfo2 heap = mallinfo2();
  return {static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)),
          static_cast<double>(heap.uordblks) + static_cast<double>(heap.hblkhd)};
}

class Run {
 public:
  Run(const Contender& contender, const Wish& wish) : contender_(contender), wish_(wish) {}

  void all() {
    warmUp();
    if (wanted("W5")) memoryOfRows();
    if (wanted("W1"))
      building();
    else
      form_ = contender_.show({wish_.rows});
    form_->settle();
    if (wanted("W2")) growingCaption();
    if (wanted("W3")) writing();
    if (wanted("W4")) paging();
    if (wanted("ticks")) ticking();
    form_.reset();
  }

 private:
  bool wanted(const char* workload) const { return wish_.workloads.find(workload) != std::string::npos; }

  void report(const char* workload, double value, const char* unit) const {
    std::printf("%s\t%s\t%s\t%d\t%.6g\t%s\n", contender_.name.c_str(), contender_.display.c_str(), workload,
                wish_.rows, value, unit);
    std::fflush(stdout);
  }

  void report(const std::string& workload, const Moment& taken, double factor, const char* unit) const {
    report(workload.c_str(), taken.time * factor, unit);
    report((workload + ".cpu").c_str(), taken.processor * factor, unit);
  }

  // A page full, twice: the first window of a process makes what all later ones share.
  void warmUp() {
    for (int i = 0; i < 2; ++i) {
      form_ = contender_.show({kPage});
      form_->settle();
      if (i == 0) form_.reset();
    }
  }

  void memoryOfRows() {
    malloc_trim(0);
    const Memory before = memory();
    form_.reset();
    form_ = contender_.show({wish_.rows});
    const Memory after = memory();
    const double more = std::max(wish_.rows - kPage, 1);
    report("W5", (after.allocated - before.allocated) / more, "B/row");
    report("W5.resident", (after.resident - before.resident) / more, "B/row");
  }

  void building() {
    for (int sample = 0; sample < wish_.samples; ++sample) {
      if (form_) form_->settle();
      form_.reset();
      const Moment start = Moment::now();
      form_ = contender_.show({wish_.rows});
      report("W1", Moment::now() - start, 1e3, "ms");
    }
  }

  void growingCaption() {
    for (int sample = 0; sample < wish_.samples; ++sample) {
      const int row = 1 + sample % 8;
      const std::string caption = longCaption(row, sample);
      const int before = form_->captionWidth();
      const Moment start = Moment::now();
      form_->setCaption(row, caption);
      const Moment laidOut = Moment::now();
      form_->paint();
      const Moment painted = Moment::now();
      if (form_->captionWidth() <= before) fail("the caption column did not grow");
      report("W2", laidOut - start, 1e3, "ms");
      report("W2.painted", painted - start, 1e3, "ms");
      form_->settle();
    }
    for (int sample = 0; sample < wish_.samples; ++sample) {
      const Moment start = Moment::now();
      if (!form_->layOutAgain()) return;
      report("layout.unchanged", Moment::now() - start, 1e6, "us");
    }
    form_->settle();
  }

  // All four kinds in equal parts, over the whole form, and never the value that a row has.
  struct Write {
    int row;
    int generation;
  };
  std::vector<Write> nextWrites() {
    generations_.resize(static_cast<std::size_t>(wish_.rows));
    std::vector<Write> writes;
    for (int i = 0; i < kWrites; ++i) {
      const auto place = static_cast<int>(static_cast<long>(i) * wish_.rows / kWrites);
      const int row = std::min(place / 4 * 4 + i % 4, wish_.rows - 1);
      writes.push_back({row, ++generations_[static_cast<std::size_t>(row)]});
    }
    return writes;
  }

  void writing() {
    for (int sample = 0; sample < wish_.samples; ++sample) {
      const std::vector<Write> writes = nextWrites();
      const Moment start = Moment::now();
      for (const Write& one : writes) form_->write(one.row, one.generation);
      const Moment written = Moment::now();
      form_->paint();
      report("W3", Moment::now() - start, 1e6 / kWrites, "us/value");
      report("W3.written", written - start, 1e6 / kWrites, "us/value");
      form_->settle();
    }
  }

  void paging() {
    const int jump = std::max(1, (form_->pages() + kMostPages - 1) / kMostPages);
    for (int sample = 0; sample < wish_.samples; ++sample) {
      form_->toTop();
      form_->settle();
      int pages = 0;
      const Moment start = Moment::now();
      for (; form_->pageDown(jump); ++pages) form_->paint();
      if (pages == 0) fail("the form is not longer than a page");
      report("W4", Moment::now() - start, 1e6 / pages, "us/page");
    }
    form_->toTop();
    form_->settle();
  }

  void ticking() {
    form_.reset();
    form_ = contender_.show({wish_.rows, true});
    form_->settle();
    int generation = 0;
    const auto tick = [&] {
      ++generation;
      for (int i = 0; i < kTickingRows; ++i) {
        const auto row = static_cast<int>(static_cast<long>(i) * wish_.rows / kTickingRows);
        form_->write(row, generation);
        form_->blink(row);
      }
    };
    const Moment start = Moment::now();
    if (!form_->run(wish_.seconds, kTicksASecond, tick)) return;
    const Moment taken = Moment::now() - start;
    if (generation == 0) fail("there was no tick");
    // A busy machine leaves ticks out.
    report("ticks", taken.processor / generation * kTicksASecond * 100, "% of a core");
  }

  const Contender& contender_;
  const Wish& wish_;
  std::unique_ptr<Form> form_;
  std::vector<int> generations_;
};

}  // namespace

void fail(const std::string& why) {
  std::fprintf(stderr, "panel_bench: %s\n", why.c_str());
  std::exit(1);
}

Wish wishOf(int argc, char** argv, int from) {
  Wish wish;
  if (argc > from) wish.rows = std::atoi(argv[from]);
  if (argc > from + 1) wish.workloads = argv[from + 1];
  if (argc > from + 2) wish.samples = std::atoi(argv[from + 2]);
  if (argc > from + 3) wish.seconds = std::atof(argv[from + 3]);
  if (wish.rows < 4 || wish.samples < 1) fail("there must be four rows and a sample at least");
  return wish;
}

void measure(const Contender& contender, const Wish& wish) { Run(contender, wish).all(); }

}  // namespace qrn::bench
