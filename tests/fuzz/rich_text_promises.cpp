#include "fuzz/rich_text_promises.h"

#include "base/text.h"
#include "fuzz/run_time_promises.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"
#include "support/work.h"

namespace qrn::fuzz {
namespace {

using namespace richtext;

bool isSayable(const CharFormat& format) {
  return format.halfPoints > 0 && format.halfPoints <= kMostHalfPoints &&
         std::abs(format.offset) <= kMostTwips && format.offset % kTwipsPerHalfPoint == 0 &&
         format.color.value_or(0) <= 0xFFFFFF && text::length(format.font) <= kLongestFontName;
}

std::string brokenBy(const Paragraph& paragraph) {
  if (!isSayable(paragraph.end)) return "the end of a paragraph has a format beyond the limits";
  const CharFormat* before = nullptr;
  for (const Run& run : paragraph.runs) {
    if (run.text.empty()) return "an empty run";
    if (run.text.find_first_of("\r\n") != std::string::npos) return "a line end inside a paragraph";
    if (before && *before == run.format) return "two runs of one format";
    if (!isSayable(run.format)) return "a format beyond the limits";
    before = &run.format;
  }
  return paragraph.format.tabStops.size() > kMostTabStops ? "too many tab stops" : "";
}

std::string brokenBy(const Document& document) {
  if (document.paragraphs().empty()) return "a document without paragraphs";
  for (const Paragraph& paragraph : document.paragraphs()) {
    if (std::string broken = brokenBy(paragraph); !broken.empty()) return broken;
  }
  if (document.length() != text::length(document.text())) return "the length is not that of the text";
  const std::string written = writeRtf(document);
  if (readRtf(written) != document) return "what was written reads as another document:\n" + written;
  return {};
}

// Cuts the document in the middle of a third and changes what lies between.
std::string brokenByChanging(const Document& document) {
  const Range middle{document.length() / 3, document.length() / 3};
  Document changed = document;
  changed.replace(middle, document.part(middle));
  if (changed.text() != document.text()) return "a part put in its own place changes the text";
  changed.set(middle, &CharFormat::bold, true);
  if (changed.uniform(middle, &CharFormat::bold) != true && !changed.part(middle).text().empty()) {
    const std::string text = changed.part(middle).text();
    if (text.find_first_not_of("\r\n") != std::string::npos) return "what was made bold is not";
  }
  if (std::string broken = brokenBy(changed); !broken.empty()) return broken;
  changed.replace(middle, Document());
  return brokenBy(changed);
}

}  // namespace

std::string brokenRichTextPromise(std::string_view text) {
  const std::optional<Document> document = readRtf(text);
  if (document.has_value() != isRtf(text)) return "what is RTF is read, and nothing else";
  if (document) {
    if (std::string broken = brokenBy(*document); !broken.empty()) return broken;
    if (std::string broken = brokenByChanging(*document); !broken.empty()) return broken;
  }
  if (std::string broken = brokenBy(Document::plain(text)); !broken.empty()) return broken;
  return test::brokenGrowth(text, kGrowthLength,
                            [](std::string_view repeated) { readRtf("{\\rtf1" + std::string(repeated)); });
}

}  // namespace qrn::fuzz
