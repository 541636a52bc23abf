#include "support_qt/images.h"

#include <array>
#include <cstddef>
#include <cstring>

#include "core/codecs.h"
#include "core/global.h"
#include "image/prg_plu.h"

namespace ecr::test {
namespace {

struct Shelf {
  const char* name;
  int price;
  std::uint8_t tax;
};
constexpr std::array<Shelf, 8> shelves = {{{"BREAD", 250, 2},
                                           {"CAKES", 1250, 2},
                                           {"DRINKS", 180, 1},
                                           {"FRUIT", 0, 2},
                                           {"NEWSPAPERS", 220, 3},
                                           {"CIGARETTES", 560, 1},
                                           {"STAMPS", 110, 0},
                                           {"DEPOSIT", 25, 0}}};

}  // namespace

void lay_digit_keys(PrgModeImage& image, std::uint8_t model) {
  const bool is_z320 = model == Global::model_z320;
  const std::array<std::size_t, 3> rows =
      is_z320 ? std::array<std::size_t, 3>{39, 54, 69} : std::array<std::size_t, 3>{12, 23, 34};
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t i = 0; i < 3; ++i) image.KeyLayout[rows[row] + i] = static_cast<std::uint8_t>(7 - 3 * row + i);
  }
}

PrgModeImage good_image(std::uint8_t model) {
  PrgModeImage image{};
  lay_digit_keys(image, model);
  image.SysOpt0 = 2;
  const std::array<int, 4> rates = {22000, 10000, 4000, 7500};
  for (std::size_t i = 0; i < rates.size(); ++i) number_to_bcds(image.VatRate[i], Decimal{rates[i]});
  for (std::size_t i = 0; i < image.Dept.size(); ++i) {
    DeptRecord& record = image.Dept[i];
    if (i < shelves.size()) {
      record.Name.set(shelves[i].name);
      record.Tax = shelves[i].tax;
      number_to_bcds(record.Price, Decimal{shelves[i].price});
    } else {
      record.Name.set("DEPT " + std::to_string(i + 1));
      record.Tax = 1;
    }
    record.TakeOutTax = record.Tax;
    record.Status1 = 0x08;
    record.Status2 = 1;
  }
  return image;
}

PrgModeImage random_image(std::uint8_t model, Random& random) {
  PrgModeImage image{};
  const std::string bytes = random.bytes(sizeof image);
  std::memcpy(&image, bytes.data(), bytes.size());
  lay_digit_keys(image, model);
  return image;
}

std::string file_bytes(const PrgModeImage& image) {
  return std::string{bytes_of_image(image)};
}

std::string empty_item_file() {
  return std::string(plu_head_size, '\0');
}

}  // namespace ecr::test
