#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/date_text_promises.h"
#include "fuzz/description_promises.h"
#include "fuzz/format_promises.h"
#include "fuzz/like_promises.h"
#include "fuzz/number_text_promises.h"
#include "fuzz/property_bag_promises.h"
#include "fuzz/rich_text_promises.h"

namespace qrn::fuzz {
namespace {

struct Input {
  std::filesystem::path file;
  std::string (*brokenPromise)(std::string_view);

  friend void PrintTo(const Input& input, std::ostream* out) { *out << input.file.filename(); }
};

std::vector<Input> inputsOf(const char* target, std::string (*brokenPromise)(std::string_view)) {
  std::vector<Input> inputs;
  const auto folder = std::filesystem::path(QRN_SOURCE_DIR) / "tests/fuzz/corpus" / target;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    inputs.push_back({entry.path(), brokenPromise});
  std::sort(inputs.begin(), inputs.end(), [](const Input& a, const Input& b) { return a.file < b.file; });
  return inputs;
}

std::string nameOf(const testing::TestParamInfo<Input>& test) {
  std::string name = test.param.file.stem().string();
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
  return name;
}

/// What the fuzzers look for, for the inputs that are kept.
class Corpus : public testing::TestWithParam<Input> {};

TEST_P(Corpus, KeepsAllPromises) {
  std::ifstream in(GetParam().file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  ASSERT_TRUE(in) << GetParam().file;
  ASSERT_FALSE(text.empty()) << GetParam().file;
  EXPECT_EQ(GetParam().brokenPromise(text), "");
}

INSTANTIATE_TEST_SUITE_P(Descriptions, Corpus,
                         testing::ValuesIn(inputsOf("description", &brokenDescriptionPromise)), nameOf);
INSTANTIATE_TEST_SUITE_P(PropertyBags, Corpus, testing::ValuesIn(inputsOf("property_bag", &brokenBagPromise)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Formats, Corpus, testing::ValuesIn(inputsOf("format", &brokenFormatPromise)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(LikePatterns, Corpus, testing::ValuesIn(inputsOf("like", &brokenLikePromise)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(NumberTexts, Corpus,
                         testing::ValuesIn(inputsOf("number_text", &brokenNumberTextPromise)), nameOf);
INSTANTIATE_TEST_SUITE_P(DateTexts, Corpus, testing::ValuesIn(inputsOf("date_text", &brokenDateTextPromise)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(RichTexts, Corpus, testing::ValuesIn(inputsOf("rich_text", &brokenRichTextPromise)),
                         nameOf);

}  // namespace
}  // namespace qrn::fuzz
