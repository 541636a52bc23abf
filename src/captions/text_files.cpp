#include "captions/text_files.h"

#include <algorithm>
#include <cstdint>

#include "core/codecs.h"
#include "core/decimal.h"
#include "core/files.h"
#include "core/global.h"
#include "core/register_text.h"
#include "core/run_log.h"
#include "core/system.h"
#include "core/text.h"
#include "image/prg_mode.h"

namespace ecr {
namespace {

// Far above any file of captions; whoever picks a film by mistake does not wait for it.
constexpr std::size_t longest_file = std::size_t{16} * 1024 * 1024;

constexpr std::string_view line_end = "\r\n";

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

/// Which line a tag such as "RHE:05:2:" names, counted from 0; npos if the text does not begin with one.
std::size_t tagged_line(std::string_view line, std::string_view head, std::string_view tail, std::size_t lines) {
  if (line.size() < head.size() + 2 + tail.size() || !line.starts_with(head)) return std::string_view::npos;
  const char tens = line[head.size()];
  const char units = line[head.size() + 1];
  if (!is_digit(tens) || !is_digit(units) || !line.substr(head.size() + 2).starts_with(tail)) {
    return std::string_view::npos;
  }
  const std::size_t number = static_cast<std::size_t>(tens - '0') * 10 + static_cast<std::size_t>(units - '0');
  return number >= 1 && number <= lines ? number - 1 : std::string_view::npos;
}

/// Takes a line tagged for one of `lines`; answers whether it was.
template <std::size_t Lines>
bool take_line(std::string_view line, std::string_view head, std::string_view tail,
               std::array<Text<24>, Lines>& lines) {
  const std::size_t index = tagged_line(line, head, tail, Lines);
  if (index == std::string_view::npos) return false;
  lines[index].set(sostituzione_to_ecr(line.substr(head.size() + 2 + tail.size())));
  return true;
}

/// Splits off what stands in front of the next colon; all of the rest if there is none.
std::string_view next_field(std::string_view& rest) {
  const std::size_t colon = rest.find(':');
  const std::string_view field = rest.substr(0, colon);
  rest = colon == std::string_view::npos ? std::string_view{} : rest.substr(colon + 1);
  return field;
}

/// The number that a text begins with, 0 where a byte cannot hold it.
std::uint8_t leading_byte(std::string_view text) {
  const std::int64_t number = leading_number(text);
  return number >= 0 && number <= 255 ? static_cast<std::uint8_t>(number) : std::uint8_t{0};
}

void take_department(std::string_view line) {
  constexpr std::size_t number_at = 4;
  constexpr std::size_t number_digits = 2;
  std::string_view rest = line.substr(number_at);
  const std::int64_t number = leading_number(rest.substr(0, number_digits));
  // A third digit makes a number that no department has.
  if (rest.size() > number_digits && is_digit(rest[number_digits])) return;
  if (number < 1 || number > static_cast<std::int64_t>(PrgMode.Dept.size())) return;
  DeptRecord& department = PrgMode.Dept[static_cast<std::size_t>(number - 1)];
  next_field(rest);
  department.Name.set(sostituzione_to_ecr(next_field(rest)));
  number_to_bcds(department.Price, next_field(rest));
  department.Tax = leading_byte(next_field(rest));
  department.TakeOutTax = leading_byte(rest);
}

/// Gathers lines of the export, and the image in the form that these leave it in.
class Export {
 public:
  PrgModeImage image = PrgMode;
  std::string lines;

  template <std::size_t Width>
  void add(Text<Width>& field) {
    const std::string shown = sostituzione_from_ecr(field.view());
    lines.append(shown).append(line_end);
    field.set(shown);
  }
  template <typename Fields>
  void add_all(Fields& fields) {
    for (auto& field : fields) add(field);
  }
};

}  // namespace

void import_captions(std::string_view bytes) {
  for (const std::string_view line : lines_of(bytes)) {
    if (take_line(line, "RFO:", ":3:", PrgMode.ReceiptFooter)) continue;
    if (take_line(line, "RHE:", ":2:", PrgMode.ReceiptHeader)) continue;
    if (line.starts_with("VAR:")) take_department(line);
  }
}

bool Import_Caption(std::string_view path) {
  return guarded("Import_Caption: ", [path] {
    std::string bytes;
    const Fault fault = read_file(path, bytes, longest_file);
    if (fault.stands()) throw FaultError{fault};
    import_captions(bytes);
  });
}

bool Export_Caption() {
  return guarded("Export_Caption: ", [] {
    Export all;
    all.add_all(all.image.DeptGroupName);
    all.add_all(all.image.ReceiptHeader);
    all.add_all(all.image.ReceiptFooter);
    all.add(all.image.OffModeScrollMessage);
    all.add(all.image.PrgXZ_ModeScrollMessage);
    all.add(all.image.RegModeSalesScrollMessage);
    all.add(all.image.IdleAMScrollMessage);
    all.add(all.image.IdlePMScrollMessage);
    all.add_all(all.image.Abr);
    all.add_all(all.image.ExtraInvoice);
    all.add_all(all.image.Caption);
    all.add_all(all.image.Other);
    const std::string path = Global::PathSetup + "caption.txt";
    if (folder_exists(path)) throw FaultError{FaultCode::path_access};
    const Fault fault = system_layer().append_file(host_path(path), all.lines);
    if (fault.stands()) throw FaultError{fault};
    PrgMode = all.image;
  });
}

}  // namespace ecr
