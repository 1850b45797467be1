#include "runtime/pool.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace qrn {
namespace {

TEST(APool, KeepsItsObjectsWhereTheyAreWhateverComesAndGoes) {
  std::mt19937 random(7);
  Pool<std::string> pool;
  std::vector<std::pair<std::string*, std::string>> known;
  for (int step = 0; step < 3000; ++step) {
    if (known.empty() || random() % 5 < 3) {
      const std::string text = "a text that is long enough for the heap " + std::to_string(step);
      known.emplace_back(&pool.add(std::string(text)), text);
    } else {
      std::swap(known[random() % known.size()], known.back());
      ASSERT_EQ(*known.back().first, known.back().second);
      pool.remove(*known.back().first);
      known.pop_back();
    }
  }
  std::set<const std::string*> places;
  for (const auto& [place, text] : known) {
    EXPECT_EQ(*place, text);
    EXPECT_TRUE(places.insert(place).second);
    pool.remove(*place);
  }
}

TEST(APool, DestroysAnObjectWhenItIsRemoved) {
  Pool<std::shared_ptr<int>> pool;
  const auto counted = std::make_shared<int>(1);
  std::shared_ptr<int>& first = pool.add(std::shared_ptr<int>(counted));
  std::shared_ptr<int>& second = pool.add(std::shared_ptr<int>(counted));
  EXPECT_EQ(counted.use_count(), 3);
  pool.remove(first);
  EXPECT_EQ(counted.use_count(), 2);
  pool.remove(second);
  EXPECT_EQ(counted.use_count(), 1);
}

TEST(APool, UsesRoomAgainThatHasBecomeFree) {
  Pool<int> pool;
  std::vector<int*> all;
  for (int i = 0; i < 100; ++i) all.push_back(&pool.add(int(i)));
  pool.remove(*all[40]);
  EXPECT_EQ(&pool.add(1000), all[40]);
  EXPECT_EQ(*all[39], 39);
  EXPECT_EQ(*all[41], 41);
  for (int* one : all) pool.remove(*one);
}

}  // namespace
}  // namespace qrn
