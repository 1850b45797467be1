#include "runtime/name_index.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>
#include <string>

#include "base/text.h"

namespace qrn {
namespace {

// Few different hashes, so that most of the names lie away from home.
std::uint32_t crowded(const std::string& name) {
  return static_cast<std::uint32_t>(text::nameHash(name) % 5) * 31;
}

TEST(ANameIndex, KnowsWhatHasComeAndNotGoneHoweverCrowdedItIs) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::mt19937 random(seed);
    NameIndex index;
    std::map<std::string, std::unique_ptr<KeyedEntry>> known;
    for (int step = 0; step < 500; ++step) {
      const std::string name = "n" + std::to_string(random() % 60);
      if (auto found = known.find(name); found != known.end()) {
        index.erase(*found->second);
        known.erase(found);
      } else {
        auto entry = std::make_unique<KeyedEntry>(KeyedEntry{name, crowded(name)});
        ASSERT_TRUE(index.insert(*entry));
        known.emplace(name, std::move(entry));
      }
      ASSERT_EQ(index.empty(), known.empty()) << seed;
      for (int i = 0; i < 60; ++i) {
        const std::string asked = "n" + std::to_string(i);
        const auto expected = known.find(asked);
        ASSERT_EQ(index.find(crowded(asked), asked),
                  expected == known.end() ? nullptr : expected->second.get())
            << "seed " << seed << ", step " << step << ", " << asked;
      }
    }
  }
}

TEST(ANameIndex, TakesNoAccountOfTheCaseOfLetters) {
  KeyedEntry entry{"Pressure", 3};
  NameIndex index;
  EXPECT_EQ(index.find(3, "pressure"), nullptr);
  index.insert(entry);
  EXPECT_EQ(index.find(3, "PRESSURE"), &entry);
  KeyedEntry other{"pressurE", 3};
  EXPECT_FALSE(index.insert(other));
  EXPECT_EQ(index.find(3, "PRESSURE"), &entry);
  EXPECT_EQ(index.find(3, "PRESSURES"), nullptr);
}

}  // namespace
}  // namespace qrn
