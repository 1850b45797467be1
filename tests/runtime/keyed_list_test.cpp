#include "runtime/keyed_list.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/error_of.h"

namespace qrn {
namespace {

using test::errorOf;
using List = KeyedList<std::string>;

/// Fills a list with "k1", "k2", … and the values "v1", "v2", …
void fill(List& list, int count) {
  for (int i = 1; i <= count; ++i) list.add("k" + std::to_string(i), "v" + std::to_string(i));
}

/// Keys in order; a wrong position shows up in place of its key.
std::vector<std::string> keysOf(const List& list) {
  std::vector<std::string> keys;
  for (std::int32_t expected = 1; expected <= list.count(); ++expected) {
    const List::Entry& entry = list.at(expected);
    keys.push_back(entry.position == expected ? entry.key
                                              : entry.key + " is at " + std::to_string(entry.position));
  }
  return keys;
}

// Below and above the length from which on an index is kept.
class KeyedLists : public testing::TestWithParam<int> {
 protected:
  KeyedLists() { fill(list, GetParam()); }
  int size() const { return GetParam(); }
  std::string last() const { return "k" + std::to_string(size()); }
  List list;
};

INSTANTIATE_TEST_SUITE_P(ShortAndLong, KeyedLists, testing::Values(3, 7, 8, 9, 10, 40));

TEST_P(KeyedLists, FindTheirEntriesByPositionAndByKeyInAnyCase) {
  EXPECT_EQ(list.count(), size());
  EXPECT_EQ(list.at(1).value, "v1");
  EXPECT_EQ(list.at(size()).key, last());
  EXPECT_EQ(list.at("K2").value, "v2");
  EXPECT_EQ(list.at("k2").position, 2);
  EXPECT_EQ(list.find("K" + std::to_string(size())), &list.at(size()));
}

TEST_P(KeyedLists, AnswerUnknownKeysWithError5AndPositionsOutsideWithError9) {
  EXPECT_EQ(list.find("other"), nullptr);
  EXPECT_EQ(errorOf([&] { list.at("other"); }), 5);
  EXPECT_EQ(errorOf([&] { list.at(0); }), 9);
  EXPECT_EQ(errorOf([&] { list.at(-1); }), 9);
  EXPECT_EQ(errorOf([&] { list.at(size() + 1); }), 9);
  EXPECT_EQ(errorOf([&] { list.take(0); }), 9);
  EXPECT_EQ(errorOf([&] { list.take(size() + 1); }), 9);
}

TEST_P(KeyedLists, RefuseAKeyInUseWithError457AndStayAsTheyWere) {
  const auto before = keysOf(list);
  EXPECT_EQ(errorOf([&] { list.add("K1", "again"); }), 457);
  EXPECT_EQ(errorOf([&] { list.add(last(), "again", 1); }), 457);
  EXPECT_EQ(keysOf(list), before);
  EXPECT_EQ(list.at("k1").value, "v1");
}

TEST_P(KeyedLists, InsertBeforeAnEntryAndRenumberThoseBehindIt) {
  auto expected = keysOf(list);
  list.add("first", "f", 1);
  list.add("third", "t", 3);
  list.add("beforeLast", "b", size() + 2);
  expected.insert(expected.begin(), "first");
  expected.insert(expected.begin() + 2, "third");
  expected.insert(expected.end() - 1, "beforeLast");
  EXPECT_EQ(keysOf(list), expected);
  EXPECT_EQ(list.at("THIRD").position, 3);
  EXPECT_EQ(list.at("k1").position, 2);
}

TEST_P(KeyedLists, AppendWhenThePositionToInsertAtIsNone) {
  EXPECT_EQ(list.add("a", "", 0).position, size() + 1);
  EXPECT_EQ(list.add("b", "", -5).position, size() + 2);
  EXPECT_EQ(list.add("c", "", size() + 100).position, size() + 3);
}

TEST_P(KeyedLists, TakeAnEntryOutAndRenumber) {
  auto expected = keysOf(list);
  EXPECT_EQ(list.take(2), "v2");
  expected.erase(expected.begin() + 1);
  EXPECT_EQ(keysOf(list), expected);
  EXPECT_EQ(list.find("k2"), nullptr);
  EXPECT_EQ(list.at("k3").position, 2);
  EXPECT_EQ(list.take(list.count()), "v" + std::to_string(size()));
  EXPECT_EQ(list.add("k2", "new").position, size() - 1);
  EXPECT_EQ(list.at("K2").value, "new");
}

TEST_P(KeyedLists, CanBeEmptiedAndFilledAgain) {
  while (list.count() > 0) list.take(1);
  EXPECT_EQ(list.find("k1"), nullptr);
  fill(list, size());
  EXPECT_EQ(list.at(last()).position, size());
}

TEST_P(KeyedLists, KeepAnEntryWhereItIsInMemoryUntilItIsTaken) {
  const List::Entry& first = list.at(1);
  for (int i = 0; i < 100; ++i) list.add("more" + std::to_string(i), "", 1);
  EXPECT_EQ(&first, &list.at("k1"));
  EXPECT_EQ(first.position, 101);
}

TEST(KeyedList, AppendsTenThousandEntriesAndStillFindsEachAtItsPlace) {
  List list;
  fill(list, 10'000);
  EXPECT_EQ(list.count(), 10'000);
  for (int i = 1; i <= 10'000; i += 7) {
    const List::Entry* found = list.find("K" + std::to_string(i));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->position, i);
  }
  EXPECT_EQ(errorOf([&] { list.add("K9999", ""); }), 457);
}

// Asks the list, when it goes, whether a key is there.
struct Asking {
  KeyedList<std::unique_ptr<Asking>>& list;
  std::vector<bool>& answers;
  ~Asking() { answers.push_back(list.find("two") != nullptr); }
};

TEST(KeyedList, ThatGoesIsEmptyForTheValuesThatGoWithIt) {
  std::vector<bool> answers;
  {
    KeyedList<std::unique_ptr<Asking>> list;
    list.add("one", std::make_unique<Asking>(list, answers));
    list.add("two", std::make_unique<Asking>(list, answers));
  }
  EXPECT_EQ(answers, (std::vector<bool>{false, false}));
}

TEST(KeyedList, HoldsValuesThatCanOnlyBeMoved) {
  KeyedList<std::unique_ptr<int>> list;
  list.add("one", std::make_unique<int>(1));
  const std::unique_ptr<int> one = list.take(1);
  EXPECT_EQ(*one, 1);
}

TEST(KeyedList, TakesNoAccountOfTheCaseOfAnyLetter) {
  List list;
  list.add("D\u00e4mpfung", "a umlaut");
  list.add("\u0394p", "delta");
  list.add("", "no name");
  list.add("D\u00f6mpfung", "o umlaut");
  for (const char* filler : {"1", "2", "3", "4", "5", "6"}) list.add(filler, "");
  EXPECT_EQ(list.at("D\u00c4MPFUNG").value, "a umlaut");
  EXPECT_EQ(list.at("d\u00d6mpfung").value, "o umlaut");
  EXPECT_EQ(list.at("\u03b4P").value, "delta");
  EXPECT_EQ(list.at("").value, "no name");
  EXPECT_EQ(errorOf([&] { list.add("D\u00c4mpfung", ""); }), 457);
}

TEST(KeyedList, TellsKeysApartWhoseBytesAreNoLetters) {
  List list;
  list.add("a\xff", "one");
  list.add("a\xfe", "other");
  list.add("a\u00d7", "times");
  list.add("a\u00f7", "by");
  EXPECT_EQ(list.at("A\xff").value, "one");
  EXPECT_EQ(list.at("A\xfe").value, "other");
  EXPECT_EQ(list.at("A\u00d7").value, "times");
}

}  // namespace
}  // namespace qrn
