#include "widgets/table_frame.h"

#include <utility>

#include "widgets/choice_list.h"
#include "widgets/record_grid.h"

namespace ecr {

TableFrame::TableFrame(NumberList& numbers, RecordGrid& grid, std::function<void(int)> load_record)
    : last_{numbers.last()},
      show_number_{[&numbers](int number) { numbers.show_number(number); }},
      grid_{grid},
      load_record_{std::move(load_record)} {
  numbers.on_click([this](int number) { picked(number); });
  grid_.on_select([this](int row) { go_to(row); });
}

TableFrame::TableFrame(ChoiceList& numbers, int last, RecordGrid& grid, std::function<void(int)> load_record)
    : last_{last},
      show_number_{[&numbers](int number) { numbers.show_text(QString::number(number)); }},
      grid_{grid},
      load_record_{std::move(load_record)} {
  numbers.on_click([this, &numbers] { picked(numbers.whole_number()); });
  grid_.on_select([this](int row) { go_to(row); });
}

void TableFrame::picked(int number) {
  load_record(number);
  grid_.bring_to_top(number);
}

void TableFrame::load_record(int number) {
  grid_.mark(number);
  load_record_(number);
}

void TableFrame::go_to(int number) {
  show_number_(number);
  load_record(number);
}

int TableFrame::following_number(int index) const {
  return index + 2 < last_ ? index + 2 : index + 1;
}

}  // namespace ecr
