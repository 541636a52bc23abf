// Bitmaps of any bytes: each ends with a code that has a meaning, and what is read is a whole picture that goes into
// the register's form and back.

#include "emulator/bitmap.h"

#include <algorithm>
#include <array>

#include "emulator/graphic.h"
#include "emulator/logo_conversion.h"
#include "emulator/receipt.h"
#include "link/tilbridge2.h"
#include "support/installation.h"

namespace ecr::fuzz::bitmap_target {
namespace {

constexpr std::array<std::int32_t, 5> faults = {TILBRIDGE_LOGO_NO_BITMAP, TILBRIDGE_LOGO_NOT_BLACK_AND_WHITE,
                                                TILBRIDGE_LOGO_UNKNOWN_TYPE, TILBRIDGE_LOGO_TOO_MANY_DOTS,
                                                TILBRIDGE_LOGO_FILE_NOT_MADE};

void check_picture(const DotPicture& picture, const std::string& file) {
  require(fits_graphic(picture), "what is read fits into the register");
  require(picture.rows.size() == picture.row_bytes() * picture.lines, "every line is there");
  if (picture.dots % 8 != 0) {
    for (std::size_t line = 0; line < picture.lines; ++line) {
      const auto last = static_cast<unsigned char>(picture.rows[(line + 1) * picture.row_bytes() - 1]);
      require((last & (0xFFU >> (picture.dots % 8))) == 0, "nothing is printed behind the last dot");
    }
  }
  require(picture_in_graphic(graphic_of(picture)) == picture, "the register's form gives it back");
  require(says_converted(code_of_fullness(picture)), "it ends with a code of success");
  // A long one takes longer than it teaches.
  if (picture.lines <= 16) require(!receipt_picture(picture, last_receipt(file)).empty(), "a receipt can be drawn");
}

}  // namespace

FUZZ_TARGET(bitmap) {
  const std::string file = file_of(data, size);
  DotPicture picture;
  const std::int32_t code = read_bitmap(file, picture);
  if (code == bitmap_was_read) {
    check_picture(picture, file);
  } else {
    require(std::find(faults.begin(), faults.end(), code) != faults.end(), "the code is one of the reader's faults");
    require(picture == DotPicture{}, "a fault leaves no picture");
  }
  // The register may hold any bytes as its logo.
  if (const auto held = picture_in_graphic(file)) require(graphic_of(*held) == file, "a logo is its own form");
  return 0;
}

}  // namespace ecr::fuzz::bitmap_target
