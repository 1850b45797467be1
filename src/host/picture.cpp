#include "host/picture.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "runtime/errors.h"

namespace qrn::host {
namespace {

using Bitmap = Picture::Bitmap;

// A run is its length less one, then the pixel from alpha to blue.
constexpr std::size_t kRunBytes = 5;
constexpr std::size_t kLongestRun = 256;

constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

[[noreturn]] void refuse(const std::string& why) { raiseRunTimeError(kInvalidPropertyValue, "Picture", why); }

std::string sizeText(const Bitmap& bitmap) {
  return std::to_string(bitmap.width) + "x" + std::to_string(bitmap.height);
}

// In 64 bits on every machine: sizes in a foreign text must not wrap around to a small count.
std::uint64_t pixelCount(const Bitmap& bitmap) {
  return static_cast<std::uint64_t>(bitmap.width) * static_cast<std::uint64_t>(bitmap.height);
}

// A scale that is no whole number leaves up to one pixel of rounding in the height.
bool sameShape(const Bitmap& first, const Bitmap& other) {
  const double exact = static_cast<double>(first.height) * other.width / first.width;
  return std::abs(other.height - exact) < 1;
}

void checkSizes(const std::vector<Bitmap>& scales) {
  const Bitmap* previous = nullptr;
  for (const Bitmap& bitmap : scales) {
    if (bitmap.width <= 0 || bitmap.height <= 0) refuse("A bitmap of " + sizeText(bitmap) + " has no pixels");
    if (previous && bitmap.width <= previous->width)
      refuse("The bitmap of " + sizeText(bitmap) + " is not larger than the one before it");
    if (!sameShape(scales.front(), bitmap))
      refuse("The bitmap of " + sizeText(bitmap) + " is no enlargement of " + sizeText(scales.front()));
    previous = &bitmap;
  }
}

void checkPixels(const std::vector<Bitmap>& scales) {
  for (const Bitmap& bitmap : scales)
    if (bitmap.argb.size() != pixelCount(bitmap))
      refuse("The bitmap of " + sizeText(bitmap) + " has " + std::to_string(bitmap.argb.size()) + " pixels");
}

void appendRuns(std::string& bytes, const std::vector<std::uint32_t>& argb) {
  for (std::size_t begin = 0, end = 0; begin < argb.size(); begin = end) {
    while (end < argb.size() && argb[end] == argb[begin] && end - begin < kLongestRun) ++end;
    bytes += static_cast<char>(end - begin - 1);
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(argb[begin] >> shift & 0xFF);
  }
}

std::string toBase64(std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::string_view group = bytes.substr(i, 3);
    std::uint32_t bits = 0;
    for (std::size_t k = 0; k < 3; ++k)
      bits = bits << 8 | (k < group.size() ? static_cast<unsigned char>(group[k]) : 0U);
    for (std::size_t k = 0; k < 4; ++k) text += k <= group.size() ? kDigits[bits >> (18 - 6 * k) & 63] : '=';
  }
  return text;
}

std::string fromBase64(std::string_view text) {
  if (text.size() % 4 != 0) refuse("The pixels of a picture text are cut off");
  for (int padding = 0; padding < 2 && text.ends_with('='); ++padding) text.remove_suffix(1);
  std::string bytes;
  std::uint32_t bits = 0;
  int held = 0;
  for (const char c : text) {
    const std::size_t digit = kDigits.find(c);
    if (digit == std::string_view::npos) refuse("The pixels of a picture text are not in base64");
    bits = bits << 6 | static_cast<std::uint32_t>(digit);
    held += 6;
    if (held >= 8) bytes += static_cast<char>(bits >> (held -= 8) & 0xFF);
  }
  return bytes;
}

std::optional<int> toSide(std::string_view text) {
  int side = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), side);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return side;
}

Bitmap sizeFromText(std::string_view text) {
  const std::size_t cross = text.find('x');
  const auto width = toSide(text.substr(0, cross));
  const auto height = cross == std::string_view::npos ? std::nullopt : toSide(text.substr(cross + 1));
  if (!width || !height) refuse("A picture text names the size \"" + std::string(text.substr(0, 40)) + "\"");
  return {*width, *height, {}};
}

std::vector<Bitmap> sizesFromText(std::string_view text) {
  std::vector<Bitmap> sizes;
  while (!text.empty()) {
    const std::size_t comma = std::min(text.find(','), text.size());
    sizes.push_back(sizeFromText(text.substr(0, comma)));
    text.remove_prefix(std::min(comma + 1, text.size()));
  }
  checkSizes(sizes);
  return sizes;
}

// Reads the runs of one bitmap off the front of the bytes.
std::vector<std::uint32_t> takePixels(std::string_view& bytes, std::uint64_t count) {
  // Said before anything is allocated, as sizes in a foreign text may be anything.
  if (bytes.size() / kRunBytes * kLongestRun < count)
    refuse("A picture text has too few pixels for its sizes");
  std::vector<std::uint32_t> argb;
  argb.reserve(static_cast<std::size_t>(count));
  while (argb.size() < count) {
    if (bytes.size() < kRunBytes) refuse("A picture text has too few pixels for its sizes");
    std::uint32_t pixel = 0;
    for (std::size_t k = 1; k < kRunBytes; ++k) pixel = pixel << 8 | static_cast<unsigned char>(bytes[k]);
    argb.insert(argb.end(), static_cast<unsigned char>(bytes[0]) + std::size_t{1}, pixel);
    bytes.remove_prefix(kRunBytes);
  }
  if (argb.size() > count) refuse("A picture text has a run that leaves its bitmap");
  return argb;
}

}  // namespace

Picture::Picture(std::vector<Bitmap> scales) : scales_(std::move(scales)) {
  checkSizes(scales_);
  checkPixels(scales_);
}

const Picture::Bitmap& Picture::bitmap(double scale) const {
  static const Bitmap none;
  if (scales_.empty()) return none;
  for (const Bitmap& bitmap : scales_)
    if (bitmap.width >= scales_.front().width * scale) return bitmap;
  return scales_.back();
}

ObjectPtr asObject(const PicturePtr& picture) { return std::const_pointer_cast<Picture>(picture); }

PicturePtr asPicture(const ObjectPtr& object) {
  auto picture = std::dynamic_pointer_cast<const Picture>(object);
  if (object && !picture) raiseRunTimeError(kTypeMismatch, "Picture");
  return picture;
}

std::string toText(const Picture& picture) {
  std::string sizes;
  std::string bytes;
  for (const Picture::Bitmap& bitmap : picture.scales()) {
    if (!sizes.empty()) sizes += ',';
    sizes += sizeText(bitmap);
    appendRuns(bytes, bitmap.argb);
  }
  return sizes + ":" + toBase64(bytes);
}

PicturePtr pictureFromText(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) refuse("A picture text has no colon after its sizes");
  std::vector<Bitmap> scales = sizesFromText(text.substr(0, colon));
  const std::string decoded = fromBase64(text.substr(colon + 1));
  std::string_view bytes = decoded;
  for (Bitmap& bitmap : scales) bitmap.argb = takePixels(bytes, pixelCount(bitmap));
  if (!bytes.empty()) refuse("A picture text has more pixels than its sizes say");
  return std::make_shared<const Picture>(std::move(scales));
}

}  // namespace qrn::host
