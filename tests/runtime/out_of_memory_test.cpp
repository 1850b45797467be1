#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>
#include <utility>

#include "runtime/keyed_list.h"

namespace {

// How many more allocations succeed; none fails below 0.
thread_local int allocationsLeft = -1;

struct Scarce {
  explicit Scarce(int allocations) { allocationsLeft = allocations; }
  Scarce(const Scarce&) = delete;
  Scarce& operator=(const Scarce&) = delete;
  ~Scarce() { allocationsLeft = -1; }
};

}  // namespace

void* operator new(std::size_t size) {
  if (allocationsLeft == 0) throw std::bad_alloc();
  if (allocationsLeft > 0) --allocationsLeft;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace qrn {
namespace {

using List = KeyedList<std::string>;

std::string keyOf(int number) {
  return "a key too long for the inside of a string " + std::to_string(number);
}

// Whether the entry was added with so few allocations; the list has to be whole, whatever the answer.
bool adds(List& list, int number, std::int32_t before, int allocations) {
  std::string key = keyOf(number);
  const Scarce scarce(allocations);
  try {
    list.add(std::move(key), "value", before);
  } catch (const std::bad_alloc&) {
    return false;
  }
  return true;
}

// Long enough for an index to be started and to grow, and for room to be taken more than once.
TEST(AKeyedListWithoutMemory, IsWhatItWasBeforeTheEntryThatFoundNone) {
  List list;
  int refused = 0;
  for (int number = 1; number <= 100; ++number) {
    const std::int32_t before = number % 3 == 0 ? 1 : 0;
    for (int allocations = 0; !adds(list, number, before, allocations); ++allocations) {
      ++refused;
      ASSERT_EQ(list.count(), number - 1);
      ASSERT_EQ(list.find(keyOf(number)), nullptr);
      for (std::int32_t position = 1; position <= list.count(); ++position) {
        ASSERT_EQ(list.at(position).position, position);
        ASSERT_EQ(list.find(list.at(position).key), &list.at(position));
      }
    }
  }
  EXPECT_EQ(list.count(), 100);
  EXPECT_GT(refused, 10);
}

}  // namespace
}  // namespace qrn
