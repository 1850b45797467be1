#include "edd/reader.h"

#include "edd/resolver.h"

namespace qrn::edd {

namespace {

std::optional<std::string> loadFromDisk(const std::string& path) {
  std::error_code ignored;
  if (!std::filesystem::exists(path, ignored)) return std::nullopt;
  return contentOf(path);
}

bool isBlank(std::string_view text) { return text.find_first_not_of(" \t\n\f\v") == std::string_view::npos; }

void checkIdentification(const Identification& found, const Token& at, Warnings& warnings) {
  const auto require = [&](const IdentificationValue& value, const char* name) {
    if (value.text.empty()) warnings.add(at, std::string("the identification has no ") + name);
  };
  require(found.manufacturer, "MANUFACTURER");
  require(found.deviceType, "DEVICE_TYPE");
  require(found.deviceRevision, "DEVICE_REVISION");
  require(found.ddRevision, "DD_REVISION");
}

Description read(std::string_view text, const std::string& fileName, const ReadOptions& options,
                 IncludeLoader loader) {
  Sources sources(std::move(loader));
  const SourceText& main = sources.add(fileName, text);
  if (isBlank(main.text)) throw DescriptionError({fileName, 1}, "the file is empty");

  std::vector<Diagnostic> list;
  Warnings warnings(list);
  Preprocessor tokens(sources, main, warnings);
  Cursor cursor(tokens, warnings, options.language);
  WrittenDescription written = parse(cursor);
  const Description& parsed = written.description;
  if (parsed.variables().empty() && parsed.menus().empty() && parsed.methods().empty())
    throw DescriptionError({fileName, 1}, "the file declares no variable, menu or method");

  Token start;
  start.source = &main;
  checkIdentification(parsed.identification, start, warnings);
  Description description = resolve(std::move(written), warnings);
  description.warnings = std::move(list);
  return description;
}

}  // namespace

Description readDescription(const std::filesystem::path& file, const ReadOptions& options) {
  // Normalised, so that a file which is included by its parent's name is known again.
  const std::filesystem::path path = file.lexically_normal();
  return read(contentOf(path), path.string(), options,
              options.loadInclude ? options.loadInclude : loadFromDisk);
}

Description readDescriptionText(std::string_view text, std::string_view fileName,
                                const ReadOptions& options) {
  return read(text, std::string(fileName), options, options.loadInclude);
}

}  // namespace qrn::edd
