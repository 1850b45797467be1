#include <filesystem>
#include <fstream>
#include <random>

#include "reading.h"

namespace qrn::edd {
namespace {

/// A folder for files that exist only while a test runs.
class FileReader : public testing::Test {
 protected:
  void SetUp() override {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::temp_directory_path() /
              ("qrn_edd_" + std::string(test->name()) + std::to_string(std::random_device{}()));
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string write(const std::string& name, const std::string& content) const {
    const auto path = folder_ / name;
    std::ofstream(path, std::ios::binary) << content;
    return path.string();
  }

  std::filesystem::path folder_;
};

std::string errorOfFile(const std::filesystem::path& path) {
  try {
    readDescription(path);
  } catch (const DescriptionError& error) {
    return error.what();
  }
  return {};
}

TEST_F(FileReader, RefusesAMissingFile) {
  const std::string path = (folder_ / "none.ddl").string();
  EXPECT_EQ(errorOfFile(path), path + ":1: cannot be opened: No such file or directory");
}

TEST_F(FileReader, RefusesADirectory) {
  EXPECT_EQ(errorOfFile(folder_), folder_.string() + ":1: is a directory, not a description");
}

TEST_F(FileReader, RefusesAnEmptyFile) {
  const std::string path = write("empty.ddl", "");
  EXPECT_EQ(errorOfFile(path), path + ":1: the file is empty");
}

TEST_F(FileReader, RefusesAFileThatIncludesItselfUnderAnotherSpelling) {
  write("self.ddl", "\n#include \"../" + folder_.filename().string() + "/self.ddl\"\n");
  const std::string path = (folder_ / "self.ddl").string();
  EXPECT_EQ(errorOfFile(folder_ / "." / "self.ddl"),
            path + ":2: the file includes itself: " + path + " -> " + path);
}

TEST_F(FileReader, RefusesToIncludeADirectory) {
  std::filesystem::create_directories(folder_ / "inc");
  const std::string path = write("main.ddl", "\n#include \"inc\"\n");
  EXPECT_EQ(errorOfFile(path), path + ":2: cannot read the included file: " + (folder_ / "inc").string() +
                                   ":1: is a directory, not a description");
}

TEST_F(FileReader, RefusesAMegabyteOfRandomBytes) {
  std::mt19937 random(20240603);
  std::string bytes(1 << 20, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
  const std::string path = write("random.ddl", bytes);
  EXPECT_TRUE(errorOfFile(path).starts_with(path + ":")) << errorOfFile(path);
}

TEST_F(FileReader, ReadsWhatWindowsEditorsWrite) {
  const std::string path = write(
      "windows.ddl",
      "\xEF\xBB\xBF#define U \"\\xB0\" \\\r\n \"C\"\r\nVARIABLE v {\r\n CONSTANT_UNIT U; TYPE FLOAT; }\r\n");
  const Description d = readDescription(path);
  EXPECT_EQ(d.variable("v")->unit, "°C");
  EXPECT_EQ(d.variable("v")->where.line, 3);
}

TEST(HostileText, OfSpaceOnlyIsCalledEmpty) {
  EXPECT_THROW(readDescriptionText(" \n\t\r\n", "x.ddl"), DescriptionError);
}

TEST(HostileText, WithoutDeclarationsIsRefused) {
  EXPECT_EQ(errorOf("// nothing\n"), "test.ddl:1: the file declares no variable, menu or method");
}

TEST(HostileText, InUtf16IsNamedAsSuch) {
  EXPECT_THROW(
      {
        try {
          readDescriptionText(std::string_view("\xFF\xFEM\0", 4), "x.ddl");
        } catch (const DescriptionError& error) {
          EXPECT_STREQ(error.what(), "x.ddl:1: the file is UTF-16; save it as UTF-8");
          throw;
        }
      },
      DescriptionError);
}

TEST(HostileText, WithANulByteIsRefused) {
  EXPECT_EQ(errorOf(std::string("\n\0", 2)), "test.ddl:2: unexpected character 0x00");
}

TEST(HostileText, WithAnUnterminatedTextIsRefusedWhereItBegins) {
  EXPECT_EQ(errorOf("\nMETHOD m { LABEL \"abc\n; }"), "test.ddl:2: this text has no closing quote");
  EXPECT_EQ(errorOf("\nMETHOD m { LABEL \"abc\\"), "test.ddl:2: this text has no closing quote");
  EXPECT_EQ(errorOf("\nMETHOD m { LABEL \"abc\\\n"), "test.ddl:2: this text has no closing quote");
  EXPECT_EQ(errorOf("\nMETHOD m { DEFINITION { 'a } }"), "test.ddl:2: this character has no closing quote");
}

TEST(HostileText, WithAControlCharacterInATextIsRefused) {
  EXPECT_EQ(errorOf("METHOD m { LABEL \"a\x01\"; }"), "test.ddl:1: control character 0x01 in a text");
}

TEST(HostileText, WithUnclosedBracesIsRefusedWhereTheyOpen) {
  EXPECT_EQ(errorOf("\nVARIABLE v {\n TYPE FLOAT;\n"), R"(test.ddl:2: this "{" of VARIABLE "v" has no "}")");
  EXPECT_EQ(errorOf("VARIABLE v {\n TYPE FLOAT {\n"),
            R"(test.ddl:2: this "{" of the type of variable "v" has no "}")");
  EXPECT_EQ(errorOf("MENU m {\n ITEMS {\n"), R"(test.ddl:2: this "{" of the items of menu "m" has no "}")");
  EXPECT_EQ(errorOf("METHOD m {\n DEFINITION {\n{ }"), R"(test.ddl:2: this "{" has no "}")");
  EXPECT_EQ(errorOf("COMMAND c {\n"), R"(test.ddl:1: this "{" has no "}")");
  EXPECT_EQ(errorOf("METHOD m (\n"), "test.ddl:1: this \"(\" has no \")\"");
}

TEST(HostileText, WithTooManyClosingBracesIsRefused) {
  EXPECT_EQ(errorOf("METHOD m { } }"), R"(test.ddl:1: expected a declaration, found "}")");
}

TEST(HostileText, ThatEndsAnywhereIsRefusedOrRead) {
  const std::string text = R"(#define X 5
MENU m { LABEL "|en|a|de|b"; ITEMS { v (READ_ONLY), g } } METHOD g (int a) { DEFINITION { '}' } }
#ifdef X
VARIABLE v { CLASS CONTAINED & DYNAMIC; HANDLING READ; TYPE ENUMERATED(1) { {0, "x", "y", {}}, DEFAULT_VALUE -X; } }
#endif
)";
  for (std::size_t length = 0; length < text.size(); ++length) {
    const std::string error = errorOf("\n" + text.substr(0, length));
    EXPECT_TRUE(error.empty() || error.starts_with("test.ddl:")) << error;
  }
}

constexpr std::size_t many = 1'000'000;

TEST(HostileText, MayNestAMillionBraces) {
  EXPECT_EQ(errorOf("METHOD m { DEFINITION " + std::string(many, '{') + std::string(many, '}') + " }"), "");
  EXPECT_EQ(errorOf("COMMAND c " + std::string(many, '{') + std::string(many, '}') + " METHOD m { }"), "");
}

TEST(HostileText, OfAMillionOpenBracesIsRefused) {
  for (const std::string start : {"COMMAND c ", "METHOD m ", "MENU m ", "MENU m { ITEMS ", "VARIABLE v ",
                                  "VARIABLE v { TYPE ENUMERATED(1) ", "VARIABLE v { VALIDITY "})
    EXPECT_NE(errorOf(start + std::string(many, '{')), "") << start;
}

TEST(HostileText, OfAMillionParenthesesIsRefused) {
  EXPECT_NE(errorOf("VARIABLE v { TYPE FLOAT { MIN_VALUE " + std::string(many, '(')), "");
  EXPECT_NE(errorOf("MENU m { ITEMS { v " + std::string(many, '(')), "");
}

TEST(HostileText, OfAMillionConditionsIsRefused) {
  std::string text = "\n";
  for (std::size_t i = 0; i < many; ++i) text += "#if 0\n";
  EXPECT_EQ(errorOf(text), "test.ddl:1000001: this condition has no #endif");
}

TEST(HostileText, OfAHundredThousandMenusInARowIsRefusedWithoutRecursion) {
  constexpr int count = 100'000;
  std::string text;
  for (int i = 0; i < count; ++i)
    text += "MENU m" + std::to_string(i) + " { ITEMS { m" + std::to_string(i + 1) + " } } ";
  EXPECT_NE(errorOf(text + "MENU m100000 { }").find("menus nest deeper than 64 levels"), std::string::npos);
  EXPECT_NE(
      errorOf(text + "MENU m100000 { ITEMS { m0 } }")
          .find(
              R"(menu "m0" contains itself: m0 -> m1 -> m2 -> m3 -> ... -> m99998 -> m99999 -> m100000 -> m0)"),
      std::string::npos);
}

TEST(HostileText, WithAVeryLongNameIsRefusedWithAShortMessage) {
  EXPECT_LT(errorOf("VARIABLE v { TYPE " + std::string(many, 'X') + "; }").size(), 200u);
}

TEST(HostileText, OfManyEnumeratorsAndLimitsIsRead) {
  std::string text = "VARIABLE v { TYPE ENUMERATED(4) {";
  for (int i = 0; i < 100'000; ++i) text += "{" + std::to_string(i) + ",\"x\"},";
  EXPECT_EQ(variableOf("TYPE FLOAT { MIN_VALUE999 1; }").ranges.size(), 1u);
  EXPECT_EQ(read(text + "} }").variables()[0].enumerators.size(), 100'000u);
}

}  // namespace
}  // namespace qrn::edd
