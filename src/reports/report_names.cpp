#include "reports/report_names.h"

#include <algorithm>
#include <array>

#include "core/packed_digits.h"
#include "core/register_text.h"
#include "core/text.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"

namespace ecr {
namespace {

std::string name_text(std::string_view name) {
  // A field that was never written holds zeros.
  return std::string{trim_end(sostituzione_from_ecr(name.substr(0, name.find('\0'))))};
}

/// The code as the reports write it; empty where it is none, without a word in the log.
std::string code_text(const Bcd<8>& code) {
  PackedDigits digits;
  if (!digits.read(code.bytes)) return {};
  std::array<char, PackedDigits::most_digits> text;
  const std::size_t first = digits.first_significant();
  return {text.data(), digits.write(text.data(), first, digits.count() - first)};
}

}  // namespace

std::string department_name(int number) {
  if (number < 1 || number > static_cast<int>(PrgMode.Dept.size())) return {};
  return name_text(PrgMode.Dept[static_cast<std::size_t>(number - 1)].Name.view());
}

std::map<std::string, std::string, std::less<>> item_names() {
  std::map<std::string, std::string, std::less<>> names;
  const auto count = static_cast<std::size_t>(std::clamp<int>(PrgPlu.PluCount, 0, plu_records_max));
  for (std::size_t i = 0; i < count; ++i) {
    const PluRecord& item = PrgPlu.Row[i];
    std::string code = code_text(item.Code);
    if (!code.empty()) names.emplace(std::move(code), name_text(item.Name.view()));
  }
  return names;
}

}  // namespace ecr
