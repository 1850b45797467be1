#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "host/font.h"
#include "host/picture.h"
#include "host/property_bag.h"
#include "test_control.h"

namespace qrn::test {

using host::PropertyBag;

inline Variant decimal(const char* digits, std::int64_t exponent) {
  return Decimal::fromDigits(false, digits, exponent);
}

inline std::shared_ptr<host::Font> fancyFont() {
  auto font = std::make_shared<host::Font>("A \"quoted\" family\\", 10.25, true, true);
  font->underline = font->strikethrough = true;
  return font;
}

inline std::shared_ptr<host::Picture> smallPicture() {
  std::vector<std::uint32_t> pixels(6, 0xFF102030);
  pixels[4] = 0x00000000;
  return std::make_shared<host::Picture>(
      std::vector<host::Picture::Bitmap>{{3, 2, pixels}, {6, 4, std::vector<std::uint32_t>(24, 0x80FFFFFF)}});
}

/// A value of every type, the ones at the edges among them.
inline std::vector<Variant> everyValue() {
  const double tiny = std::numeric_limits<double>::denorm_min();
  return {Null{},
          true,
          false,
          std::numeric_limits<std::int16_t>::min(),
          std::int16_t{7},
          std::numeric_limits<std::int32_t>::min(),
          std::numeric_limits<std::int32_t>::max(),
          0.1F,
          std::numeric_limits<float>::max(),
          0.1,
          1.0 / 3,
          -tiny,
          std::numeric_limits<double>::max(),
          Currency{1234567890123456789},
          Currency{-5},
          decimal("79228162514264337593543950335", 0),
          decimal("15", -28),
          -Decimal::fromDigits(false, "1234567", -3),
          Date{45000.75},
          Date{-1.25},
          ErrorValue{-2147352572},
          "",
          "plain",
          " blanks around ",
          "a = b, \"quoted\" \\ back\\nslash",
          "lines\r\nand\ttabs\n",
          "True",
          "Long 5",
          "\u00e4\u20ac\U0001F600",
          std::string("zero\0byte", 9),
          "broken \xC3( bytes",
          fancyFont(),
          std::make_shared<host::Font>(),
          smallPicture(),
          std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>{})};
}

inline PropertyBag bagOf(const std::vector<Variant>& values) {
  PropertyBag bag;
  for (std::size_t i = 0; i < values.size(); ++i)
    bag.writeProperty("Key" + std::to_string(i), values[i], Empty{});
  return bag;
}

inline void expectSame(const PropertyBag& bag, const PropertyBag& other) {
  ASSERT_EQ(bag.items().size(), other.items().size());
  for (std::size_t i = 0; i < bag.items().size(); ++i) {
    EXPECT_EQ(bag.items()[i].key, other.items()[i].key);
    EXPECT_EQ(bag.items()[i].value.type(), other.items()[i].value.type()) << bag.items()[i].key;
    EXPECT_TRUE(host::sameValue(bag.items()[i].value, other.items()[i].value))
        << bag.items()[i].key << " in\n"
        << bag.toText();
  }
}

inline std::string bagText(std::string_view lines) {
  return "QRNV16Controls2 properties 1\n" + std::string(lines);
}

}  // namespace qrn::test
