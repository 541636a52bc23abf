#include "editors/option_list.h"

#include <algorithm>
#include <stdexcept>

#include "core/codecs.h"
#include "core/model.h"
#include "image/prg_mode.h"
#include "widgets/controls.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int not_a_member = -1;
constexpr int widest_list = 320;

QString control_name(std::string_view name, int index) {
  const std::string text{name};
  return index == not_a_member ? QString::fromStdString(text) : member_name(text.c_str(), index);
}

}  // namespace

OptionLists::OptionLists(QWidget& parent, Captions& captions, std::span<const OptionRow> rows)
    : OptionLists{parent, captions, rows, not_a_member, 0} {}

OptionLists::OptionLists(QWidget& parent, Captions& captions, std::span<const OptionRow> rows, int index,
                         std::size_t record)
    : record_{record} {
  for (const OptionRow& row : rows) {
    auto* list = new ChoiceList{control_name(row.control, index), &parent};
    list->setMaximumWidth(widest_list);
    auto* label = make_label(control_name(row.label, index), &parent, list);
    captions.add(*label, row.key, row.caption);
    controls_.push_back({&row, label, list});
    lists_.push_back(list);
  }
}

void OptionLists::lay_out(QGridLayout& grid, int first_line, int column, std::size_t first, std::size_t count) const {
  const std::size_t end = std::min(controls_.size(), count > controls_.size() ? controls_.size() : first + count);
  for (std::size_t i = first; i < end; ++i) {
    const int line = first_line + static_cast<int>(i - first);
    grid.addWidget(controls_[i].label, line, column);
    grid.addWidget(controls_[i].list, line, column + 1);
  }
}

QGridLayout* OptionLists::block(int columns) const {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(10);
  const auto side_by_side = static_cast<std::size_t>(columns);
  const std::size_t lines = (controls_.size() + side_by_side - 1) / side_by_side;
  for (int i = 0; i < columns; ++i) {
    // Between two blocks lies a gap; behind the last one what is left over.
    const int column = i * 3;
    lay_out(*grid, 0, column, lines * static_cast<std::size_t>(i), lines);
    grid->setColumnStretch(column + 1, 3);
    grid->setColumnMinimumWidth(column + 2, i + 1 < columns ? 24 : 0);
    grid->setColumnStretch(column + 2, i + 1 < columns ? 0 : 2);
  }
  return grid;
}

void OptionLists::load() const {
  for (const Controls& controls : controls_) {
    const OptionRow& row = *controls.row;
    controls.list->fill(entries_of(row.choices));
    const bool is_there = is_on_chosen_model(row.models);
    controls.label->setVisible(is_there);
    controls.list->setVisible(is_there);
  }
  show(record_);
}

void OptionLists::show(std::size_t record) const {
  for (const Controls& controls : controls_) {
    const OptionRow& row = *controls.row;
    std::optional<int> entry = shown_entry(row, record);
    if (!entry.has_value() && row.load == OptionLoad::mends_unknown) {
      image_byte(record + row.place.offset) = 0;
      entry = shown_entry(row, record);
    }
    if (entry.has_value()) {
      controls.list->show_entry(*entry);
    } else {
      controls.list->show_nothing();
    }
  }
}

void OptionLists::save(std::size_t record) const {
  for (const Controls& controls : controls_) {
    const OptionRow& row = *controls.row;
    const ChoiceList* source = row.saved_from.empty() ? controls.list : list(row.saved_from);
    const std::uint8_t number = source->number();
    std::uint8_t& byte = image_byte(record + row.place.offset);
    switch (row.place.stored) {
      case Stored::bit:
        byte_bit_change(byte, row.place.bit, number > 0);
        break;
      case Stored::byte:
        byte = number;
        break;
      case Stored::bcd_byte:
        number_to_bcd(byte, number);
        break;
    }
  }
}

const OptionLists::Controls& OptionLists::named(std::string_view control) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Controls& controls) { return controls.row->control == control; });
  if (found == controls_.end()) throw std::logic_error{"no such list"};
  return *found;
}

ChoiceList* OptionLists::list(std::string_view control) const {
  return named(control).list;
}

QLabel* OptionLists::label(std::string_view control) const {
  return named(control).label;
}

QString entry_of(const Choice& choice) {
  if (!choice.text.has_value()) return screen_text(choice.literal);
  const Key text = *choice.text;
  const Key decides = choice.decides.value_or(text);
  if (choice.prefix == Prefix::point_blank) return crossed_choice(choice.digit, text, decides, choice.literal);
  if (message(decides).empty()) return screen_text(choice.literal);
  return QString::number(choice.digit) + u'.' + screen_text(message(text));
}

QStringList entries_of(std::span<const Choice> choices) {
  QStringList entries;
  for (const Choice& choice : choices) entries.push_back(entry_of(choice));
  return entries;
}

std::optional<int> shown_entry(const OptionRow& row, std::size_t record) {
  const std::uint8_t byte = image_byte(record + row.place.offset);
  if (row.place.stored == Stored::bit) {
    const bool second = byte_bit_tst(byte, row.place.bit) != (row.load == OptionLoad::other_way_round);
    return second ? 1 : 0;
  }
  const int number = row.place.stored == Stored::bcd_byte ? bcd_to_number(byte) : byte;
  const auto found =
      std::find_if(row.choices.begin(), row.choices.end(), [&](const Choice& each) { return each.digit == number; });
  if (found == row.choices.end()) return std::nullopt;
  return static_cast<int>(found - row.choices.begin());
}

}  // namespace ecr
