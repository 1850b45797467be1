#include "edd/source.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>
#include <utility>

#include "edd/utf8.h"

namespace qrn::edd {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

void refuseUnreadable(const std::string& name, std::string_view text) {
  if (text.size() > Sources::maximumSize) throw DescriptionError({name, 1}, "the file is larger than 64 MB");
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"))
    throw DescriptionError({name, 1}, "the file is UTF-16; save it as UTF-8");
}

// Whatever ended a line, a line feed ends it now.
void unifyLineEnds(std::string& text) {
  auto to = text.begin();
  for (auto from = text.begin(); from != text.end(); ++from) {
    const bool pair = *from == '\r' && from + 1 != text.end() && *(from + 1) == '\n';
    if (!pair) *to++ = *from == '\r' ? '\n' : *from;
  }
  text.erase(to, text.end());
}

}  // namespace

const SourceText& Sources::add(std::string name, std::string_view text) {
  refuseUnreadable(name, text);
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  SourceText added{std::move(name), isUtf8(text) ? std::string(text) : utf8FromLatin1(text)};
  unifyLineEnds(added.text);
  return texts_.emplace_back(std::move(added));
}

const SourceText* Sources::include(const SourceText& includer, std::string_view written) {
  std::string portable(written);
  std::replace(portable.begin(), portable.end(), '\\', '/');
  const std::filesystem::path folder = std::filesystem::path(includer.name).parent_path();
  const std::string path = (folder / portable).lexically_normal().string();
  const auto known = included_.find(path);
  if (known != included_.end()) return known->second;

  const auto text = loader_ ? loader_(path) : std::nullopt;
  if (!text) return nullptr;
  return included_[path] = &add(path, *text);
}

std::string contentOf(const std::filesystem::path& file) {
  const std::string name = file.string();
  std::error_code ignored;
  if (std::filesystem::is_directory(file, ignored))
    throw DescriptionError({name, 1}, "is a directory, not a description");
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  if (!in)
    throw DescriptionError({name, 1},
                           "cannot be opened" + (errno != 0 ? ": " + std::string(std::strerror(errno)) : ""));

  std::string content;
  constexpr std::size_t block = std::size_t{1} << 16;
  while (in && content.size() <= Sources::maximumSize) {
    const std::size_t had = content.size();
    content.resize(had + block);
    in.read(content.data() + had, static_cast<std::streamsize>(block));
    content.resize(had + static_cast<std::size_t>(in.gcount()));
  }
  if (in.bad()) throw DescriptionError({name, 1}, "cannot be read");
  return content;
}

}  // namespace qrn::edd
