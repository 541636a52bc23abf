#include "widgets/table_frame.h"

#include <utility>

#include "widgets/choice_list.h"
#include "widgets/record_grid.h"

namespace ecr {

TableFrame::TableFrame(NumberList& numbers, RecordGrid& grid, std::function<void(int)> load_record)
    : numbers_{numbers}, grid_{grid}, load_record_{std::move(load_record)} {
  numbers_.on_click([this](int number) {
    this->load_record(number);
    grid_.bring_to_top(number);
  });
  grid_.on_select([this](int row) { go_to(row); });
}

void TableFrame::load_record(int number) {
  grid_.mark(number);
  load_record_(number);
}

void TableFrame::go_to(int number) {
  numbers_.show_number(number);
  load_record(number);
}

int TableFrame::following_number(int index) const {
  return index + 2 < numbers_.last() ? index + 2 : index + 1;
}

}  // namespace ecr
