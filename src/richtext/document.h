#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "richtext/format.h"

namespace qrn::richtext {

/// Text within one line that looks the same throughout. A break inside a paragraph is the character
/// kLineBreak.
struct Run {
  std::string text;
  CharFormat format;

  friend bool operator==(const Run&, const Run&) = default;
};

inline constexpr char32_t kLineBreak = 0x0B;
/// How a paragraph end reads in a text.
inline constexpr std::string_view kParagraphEnd = "\r\n";

struct Paragraph {
  ParagraphFormat format;
  std::vector<Run> runs;  // none is empty, and no two neighbours have the same format
  CharFormat end;         // of the paragraph's end: what an empty paragraph is as high as

  /// Behind what is there; joins the last run where the format is the same.
  void append(std::string_view text, const CharFormat& of);

  friend bool operator==(const Paragraph&, const Paragraph&) = default;
};

/// A place in a document: `length` code points from `start`.
struct Range {
  std::size_t start = 0;
  std::size_t length = 0;
};

/// Formatted text: paragraphs, at least one, with an end between each two.
///
/// Positions and lengths count code points of `text()`, where a paragraph end is two: "\r\n". A position
/// between those two means the one before them; one behind the end means the end. Every operation takes time
/// in proportion to the document at most.
class Document {
 public:
  Document() : paragraphs_(1) {}
  explicit Document(std::vector<Paragraph> paragraphs);
  /// "\r\n", "\r" and "\n" each end a paragraph; other control characters than tabs and line breaks are left
  /// out.
  static Document plain(std::string_view text, const CharFormat& format = {},
                        const ParagraphFormat& paragraph = {});

  const std::vector<Paragraph>& paragraphs() const { return paragraphs_; }
  std::size_t length() const;
  std::string text() const;
  /// Inside the document and not inside a paragraph end.
  std::size_t settled(std::size_t position) const;
  Document part(Range range) const;

  /// What text inserted there would look like: as the character before it in the paragraph, as the one behind
  /// it at a paragraph's start.
  const CharFormat& formatAt(std::size_t position) const;
  const ParagraphFormat& paragraphFormatAt(std::size_t position) const;

  /// What all characters of a range have in common, nothing when they differ. Of a range without characters
  /// it is what text inserted there would have.
  template <class T>
  std::optional<T> uniform(Range range, T CharFormat::*field) const {
    Common<T> common;
    visit(range, [&](const CharFormat& one) { common.add(one.*field); });
    if (!common.first) common.add(formatAt(range.start).*field);
    return common.value();
  }
  /// The same of the paragraphs that a range touches.
  template <class T>
  std::optional<T> uniform(Range range, T ParagraphFormat::*field) const {
    Common<T> common;
    const auto [first, last] = touched(range);
    for (std::size_t i = first; i <= last; ++i) common.add(paragraphs_[i].format.*field);
    return common.value();
  }

  /// Changes the characters of a range and the paragraph ends in it, the last one of the document with its
  /// last character.
  void change(Range range, const std::function<void(CharFormat&)>& action);
  template <class T>
  void set(Range range, T CharFormat::*field, const T& value) {
    change(range, [&](CharFormat& format) { format.*field = value; });
  }
  /// All paragraphs that a range touches.
  template <class T>
  void set(Range range, T ParagraphFormat::*field, const T& value) {
    const auto [first, last] = touched(range);
    for (std::size_t i = first; i <= last; ++i) paragraphs_[i].format.*field = value;
  }

  /// Puts another document in the place of a range. Its paragraphs bring their formats along, except for the
  /// first one where it continues a paragraph, and the last one where it is continued.
  void replace(Range range, const Document& by);

  friend bool operator==(const Document&, const Document&) = default;

 private:
  struct Place {
    std::size_t paragraph;
    std::size_t offset;  // code points from the paragraph's start
  };
  struct Places {
    std::size_t first, last;
  };
  template <class T>
  struct Common {
    const T* first = nullptr;
    bool mixed = false;

    void add(const T& one) {
      if (!first) first = &one;
      mixed |= *first != one;
    }
    std::optional<T> value() const { return mixed ? std::nullopt : std::optional<T>(*first); }
  };

  Place place(std::size_t position) const;
  // Both ends of a range.
  std::pair<Place, Place> places(Range range) const;
  Places touched(Range range) const;
  void visit(Range range, const std::function<void(const CharFormat&)>& look) const;

  std::vector<Paragraph> paragraphs_;
};

}  // namespace qrn::richtext
