#include "make_programming/programming.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <utility>

#include "core/decimal.h"
#include "core/fault.h"
#include "image/layout.h"
#include "lang/register_language.h"
#include "make_programming/language_file.h"
#include "make_programming/values.h"

namespace ecr {
namespace {

constexpr std::string_view image_file = "PRG_MODE";
constexpr std::string_view item_file = "PRG_PLU";
constexpr std::string_view key_file = "KEY_DEFAULT";
constexpr std::string_view language_file = "LANGUAGE";

constexpr std::string_view key_sections[] = {"KeyLayout"};

constexpr std::size_t key_layout_size = sizeof(PrgModeImage::KeyLayout);
constexpr std::size_t item_size = sizeof(PluRecord);
constexpr std::size_t list_entries = std::tuple_size_v<PopUpList>;
constexpr std::size_t list_count = pop_up_lists_size / sizeof(PopUpList);

/// Entries of the pop-up lists, from the start of PRG_PLU.BIN.
constexpr FieldPlace list_entry{"PopUpList", 2, list_count* list_entries, 8, 8, FieldKind::bcd};

constexpr std::string_view number_mark = "{n}";

std::span<std::uint8_t> field_bytes(std::vector<std::uint8_t>& bytes, std::size_t offset, std::size_t width) {
  return std::span{bytes}.subspan(offset, width);
}

// ---- names in front of "="

/// "Dept", "Dept[7]", "Dept[7].Price", "Dept[7..9]".
struct Target {
  std::string_view section;
  std::optional<std::size_t> first;
  std::optional<std::size_t> last;
  std::string_view field;  // behind the point
};

std::optional<std::size_t> index_of(std::string_view digits) {
  if (digits.empty() || digits.size() > 4 || digits.find_first_not_of("0123456789") != std::string_view::npos) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(leading_number(digits));
}

Target target_of(std::string_view text) {
  Target target;
  const std::size_t bracket = std::min(text.find('['), text.size());
  const std::size_t point = text.find('.', bracket == text.size() ? 0 : std::min(text.find(']'), text.size()));
  target.section = text.substr(0, std::min(bracket, point));
  if (point != std::string_view::npos) target.field = text.substr(point + 1);
  if (bracket == text.size()) return target;
  const std::size_t end = text.find(']');
  const bool ends = end != std::string_view::npos && end + 1 == std::min(point, text.size());
  if (!ends) throw ValueError{"a \"]\" is missing"};
  const std::string_view index = text.substr(bracket + 1, end - bracket - 1);
  const std::size_t dots = index.find("..");
  target.first = index_of(index.substr(0, dots));
  if (dots != std::string_view::npos) target.last = index_of(index.substr(dots + 2));
  if (!target.first || (dots != std::string_view::npos && (!target.last || *target.last < *target.first))) {
    throw ValueError{"\"" + std::string{index} + "\" is no number and no range of numbers"};
  }
  return target;
}

/// The fields of a record section, in order.
std::vector<const FieldPlace*> record_fields(std::string_view section) {
  std::vector<const FieldPlace*> fields;
  for (const FieldPlace& field : image_fields) {
    if (field.name.size() > section.size() && field.name.starts_with(section) && field.name[section.size()] == '.') {
      fields.push_back(&field);
    }
  }
  return fields;
}

std::string with_number(std::string text, std::size_t number) {
  for (std::size_t place = text.find(number_mark); place != std::string::npos; place = text.find(number_mark, place)) {
    text.replace(place, number_mark.size(), std::to_string(number));
  }
  return text;
}

std::vector<std::string> with_number(const std::vector<std::string>& values, std::size_t number) {
  std::vector<std::string> result;
  for (const std::string& value : values) result.push_back(with_number(value, number));
  return result;
}

// ---- from statements to bytes

/// Bytes that are written once by each file: a line may correct what an included file says, not what its own says.
class Bytes {
 public:
  std::vector<std::uint8_t> bytes;

  void set(const Statement& from, const FieldPlace& field, std::size_t number, std::string_view value) {
    const std::size_t offset = field.offset_of(number);
    const auto [said, fresh] = said_.try_emplace({from.file, offset}, from.line);
    if (!fresh) {
      throw ValueError{name_of(field, number) + " is said in line " + std::to_string(said->second) + " already"};
    }
    try {
      set_value(field, value, field_bytes(bytes, offset, field.width));
    } catch (const ValueError& error) {
      throw ValueError{name_of(field, number) + ": " + error.what()};
    } catch (const FaultError& error) {
      throw ValueError{name_of(field, number) + ": " + std::string{error.fault().description()}};
    }
  }

 private:
  std::map<std::pair<std::string, std::size_t>, int> said_;
};

class ImageMaker {
 public:
  /// `only`: the sections that a source may speak of; empty for all.
  explicit ImageMaker(std::span<const std::string_view> only = {}) : only_{only} {
    image_.bytes.assign(prg_mode_size, 0);
    for (const FieldPlace& field : image_fields) {
      if (field.kind != FieldKind::text) continue;
      for (std::size_t number = field.first; field.has(number); ++number) fill(field, number, ' ');
    }
    const FieldPlace& keys = *field_named(image_fields, "KeyLayout");
    for (std::size_t position = keys.first; keys.has(position); ++position) fill(keys, position, 255);
  }

  void take(const Statement& statement) {
    const Target target = target_of(statement.target);
    if (!only_.empty() && std::ranges::find(only_, target.section) == only_.end()) {
      throw ValueError{"this file holds no " + std::string{target.section}};
    }
    const std::vector<const FieldPlace*> record = record_fields(target.section);
    if (record.empty()) {
      take_row(statement, target);
    } else {
      take_record(statement, target, record);
    }
  }

  [[nodiscard]] std::string result() const { return {image_.bytes.begin(), image_.bytes.end()}; }

 private:
  void fill(const FieldPlace& field, std::size_t number, std::uint8_t byte) {
    std::ranges::fill(field_bytes(image_.bytes, field.offset_of(number), field.width), byte);
  }

  void take_row(const Statement& statement, const Target& target) {
    const FieldPlace* field = field_named(image_fields, target.section);
    if (field == nullptr || !target.field.empty()) throw ValueError{"there is no " + statement.target};
    if (!target.last) {
      std::size_t number = target.first.value_or(field->first);
      for (const std::string& value : statement.values) set(statement, *field, number++, value);
      return;
    }
    if (statement.values.size() != 1) throw ValueError{"a range takes one value"};
    for (std::size_t number = *target.first; number <= *target.last; ++number) {
      set(statement, *field, number, with_number(statement.values[0], number));
    }
  }

  void take_record(const Statement& statement, const Target& target, std::vector<const FieldPlace*> fields) {
    if (!target.first) throw ValueError{"a record has a number, " + statement.target + "[1]"};
    if (!target.field.empty()) {
      const auto other = [&](const FieldPlace* field) {
        return field->name.substr(target.section.size() + 1) != target.field;
      };
      fields.erase(std::remove_if(fields.begin(), fields.end(), other), fields.end());
      if (fields.empty()) throw ValueError{"there is no " + statement.target};
    }
    if (statement.values.size() != fields.size()) {
      throw ValueError{std::string{target.section} + " takes " + std::to_string(fields.size()) + " values, here are " +
                       std::to_string(statement.values.size())};
    }
    for (std::size_t number = *target.first; number <= target.last.value_or(*target.first); ++number) {
      const std::vector<std::string> values = target.last ? with_number(statement.values, number) : statement.values;
      for (std::size_t i = 0; i < fields.size(); ++i) set(statement, *fields[i], number, values[i]);
    }
  }

  void set(const Statement& statement, const FieldPlace& field, std::size_t number, std::string_view value) {
    if (!field.has(number)) {
      throw ValueError{std::string{field.name} + " counts from " + std::to_string(field.first) + " to " +
                       std::to_string(field.first + field.count - 1)};
    }
    image_.set(statement, field, number, value);
  }

  Bytes image_;
  std::span<const std::string_view> only_;
};

class ItemMaker {
 public:
  ItemMaker() { head_.bytes.assign(plu_head_size, 0); }

  void take(const Statement& statement) {
    const Target target = target_of(statement.target);
    if (target.section == "PopUpList" && target.field.empty()) return take_list(statement, target);
    if (target.section != "Plu" || !target.field.empty()) throw ValueError{"there is no " + statement.target};
    if (!target.first) return add_item(statement, statement.values);
    if (!target.last) throw ValueError{"items have no numbers: they stand in the order of their lines"};
    for (std::size_t number = *target.first; number <= *target.last; ++number) {
      add_item(statement, with_number(statement.values, number));
    }
  }

  [[nodiscard]] std::string result() const {
    std::string bytes{head_.bytes.begin(), head_.bytes.end()};
    const std::size_t count = items_.size() / item_size;
    bytes[0] = static_cast<char>(count & 0xFF);
    bytes[1] = static_cast<char>(count >> 8);
    bytes.append(items_.begin(), items_.end());
    return bytes;
  }

 private:
  void take_list(const Statement& statement, const Target& target) {
    if (!target.first || target.last || *target.first < 1 || *target.first > list_count) {
      throw ValueError{"PopUpList counts from 1 to " + std::to_string(list_count)};
    }
    if (statement.values.size() > list_entries) {
      throw ValueError{"a list holds " + std::to_string(list_entries) + " codes"};
    }
    std::size_t number = list_entry.first + (*target.first - 1) * list_entries;
    for (const std::string& value : statement.values) head_.set(statement, list_entry, number++, value);
  }

  void add_item(const Statement& statement, const std::vector<std::string>& values) {
    if (values.size() != item_fields.size()) {
      throw ValueError{"Plu takes " + std::to_string(item_fields.size()) + " values, here are " +
                       std::to_string(values.size())};
    }
    if (items_.size() / item_size == static_cast<std::size_t>(plu_records_max)) throw ValueError{"too many items"};
    Bytes item;
    item.bytes.assign(item_size, 0);
    for (std::size_t i = 0; i < values.size(); ++i) item.set(statement, item_fields[i], 1, values[i]);
    items_.insert(items_.end(), item.bytes.begin(), item.bytes.end());
  }

  Bytes head_;
  std::vector<std::uint8_t> items_;
};

template <typename Maker>
std::string make_with(Maker maker, std::span<const Statement> statements) {
  for (const Statement& statement : statements) {
    try {
      maker.take(statement);
    } catch (const ValueError& error) {
      throw SourceError{statement.file, statement.line, error.what()};
    }
  }
  return maker.result();
}

// ---- from bytes to lines

std::size_t characters_in(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) >> 6) != 2; }));
}

bool is_number(const std::string& value) {
  return value.find_first_not_of("0123456789.-") == std::string::npos;
}

/// Lines with the same values in each, written below each other: columns of numbers to the right, others to the left.
class Rows {
 public:
  void add(std::string target, std::vector<std::string> values) {
    target_width_ = std::max(target_width_, target.size());
    columns_.resize(std::max(columns_.size(), values.size()));
    for (std::size_t i = 0; i < values.size(); ++i) {
      columns_[i].width = std::max(columns_[i].width, characters_in(values[i]));
      columns_[i].numbers = columns_[i].numbers && is_number(values[i]);
    }
    rows_.emplace_back(std::move(target), std::move(values));
  }

  [[nodiscard]] std::string text() const {
    std::string text;
    for (const auto& [target, values] : rows_) {
      text += target + std::string(target_width_ - target.size(), ' ') + " =";
      for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string blanks(columns_[i].width - characters_in(values[i]), ' ');
        const bool last = i + 1 == values.size();
        text += columns_[i].numbers ? " " + blanks + values[i] : " " + values[i];
        if (!last) text += columns_[i].numbers ? "," : "," + blanks;
      }
      text += "\n";
    }
    return text;
  }

 private:
  struct Column {
    std::size_t width = 0;
    bool numbers = true;
  };
  std::vector<std::pair<std::string, std::vector<std::string>>> rows_;
  std::vector<Column> columns_;
  std::size_t target_width_ = 0;
};

std::string file_line(std::string_view kind) {
  return "file = " + std::string{kind} + "\n";
}

std::span<const std::uint8_t> part(std::string_view bytes, std::size_t offset, std::size_t width) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()) + offset, width};
}

/// A comment line with the names of a record's fields, in the order of the values.
template <typename Fields>
std::string heading(std::string_view section, const Fields& names) {
  std::string text = "\n# " + std::string{section} + ":";
  for (const std::string_view name : names) {
    text += (text.back() == ':' ? " " : ", ") + std::string{name.substr(section.size() + 1)};
  }
  return text + "\n";
}

/// `base` is the image's offset of bytes[0].
std::string explain_row(std::string_view bytes, std::size_t base, const FieldPlace& field) {
  Rows rows;
  for (std::size_t number = field.first; field.has(number); ++number) {
    const std::size_t offset = field.offset_of(number) - base;
    rows.add(name_of(field, number), {written_value(field, part(bytes, offset, field.width))});
  }
  return rows.text();
}

std::string explain_records(std::string_view bytes, std::string_view section) {
  const std::vector<const FieldPlace*> fields = record_fields(section);
  std::vector<std::string_view> names;
  for (const FieldPlace* field : fields) names.push_back(field->name);
  Rows rows;
  for (std::size_t number = 1; fields.front()->has(number); ++number) {
    std::vector<std::string> values;
    for (const FieldPlace* field : fields) {
      values.push_back(written_value(*field, part(bytes, field->offset_of(number), field->width)));
    }
    rows.add(std::string{section} + "[" + std::to_string(number) + "]", std::move(values));
  }
  return heading(section, names) + rows.text();
}

std::string explain_image(std::string_view bytes) {
  std::string text = file_line(image_file);
  std::string_view section;
  bool single_before = false;
  for (const FieldPlace& field : image_fields) {
    const std::size_t point = field.name.find('.');
    const bool single = field.count == 1;
    if (point == std::string_view::npos) {
      // Fields that stand alone follow each other; a row of fields is set apart.
      if (!single || !single_before) text += "\n";
      text += explain_row(bytes, 0, field);
    } else if (field.name.substr(0, point) != section) {
      section = field.name.substr(0, point);
      text += explain_records(bytes, section);
    }
    single_before = single;
  }
  return text;
}

std::string explain_keys(std::string_view bytes) {
  const FieldPlace& keys = *field_named(image_fields, "KeyLayout");
  return file_line(key_file) + "\n" + explain_row(bytes, keys.offset, keys);
}

std::string explain_items(std::string_view bytes) {
  std::string text = file_line(item_file) + "\n";
  for (std::size_t list = 1; list <= list_count; ++list) {
    std::vector<std::string> codes;
    std::size_t used = 1;
    for (std::size_t entry = 1; entry <= list_entries; ++entry) {
      const std::size_t offset = list_entry.offset_of((list - 1) * list_entries + entry);
      codes.push_back(written_value(list_entry, part(bytes, offset, list_entry.width)));
      if (codes.back() != "0") used = entry;
    }
    codes.resize(used);
    Rows rows;
    rows.add("PopUpList[" + std::to_string(list) + "]", std::move(codes));
    text += rows.text();
  }
  std::vector<std::string_view> names;
  for (const FieldPlace& field : item_fields) names.push_back(field.name);
  Rows rows;
  for (std::size_t start = plu_head_size; start < bytes.size(); start += item_size) {
    std::vector<std::string> values;
    for (const FieldPlace& field : item_fields) {
      values.push_back(written_value(field, part(bytes, start + field.offset, field.width)));
    }
    rows.add("Plu", std::move(values));
  }
  return text + heading("Plu", names) + rows.text();
}

/// Whether the bytes are an item table as long as its count says.
bool is_item_table(std::string_view bytes) {
  if (bytes.size() < plu_head_size) return false;
  const auto count = static_cast<std::size_t>(static_cast<unsigned char>(bytes[0]) |
                                              static_cast<unsigned>(static_cast<unsigned char>(bytes[1])) << 8);
  return count <= static_cast<std::size_t>(plu_records_max) && bytes.size() == plu_head_size + count * item_size;
}

}  // namespace

std::string make_programming(const std::vector<Statement>& statements) {
  if (statements.empty()) throw SourceError{"source", 0, "the source is empty"};
  const Statement& head = statements.front();
  const std::span<const Statement> rest = std::span{statements}.subspan(1);
  if (head.target == "file" && head.values.size() == 1) {
    const std::string& kind = head.values.front();
    if (kind == image_file) return make_with(ImageMaker{}, rest);
    if (kind == item_file) return make_with(ItemMaker{}, rest);
    if (kind == key_file) return make_with(ImageMaker{key_sections}, rest).substr(prg_mode_size - key_layout_size);
    if (kind == language_file) return language_lines(make_with(ImageMaker{register_language_sections}, rest));
  }
  throw SourceError{head.file, head.line, "a source begins with file = PRG_MODE, PRG_PLU, KEY_DEFAULT or LANGUAGE"};
}

std::string explain_programming(std::string_view bytes) {
  if (bytes.size() == prg_mode_size) return explain_image(bytes);
  if (bytes.size() == key_layout_size) return explain_keys(bytes);
  if (is_item_table(bytes)) return explain_items(bytes);
  throw NotProgramming{"these are neither an image nor an item table nor a keyboard"};
}

}  // namespace ecr
