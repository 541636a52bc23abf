#pragma once
// What table editors share: a number list and a grid that show the same table, and one record of it in the fields.

#include <functional>

namespace ecr {

class ChoiceList;
class NumberList;
class RecordGrid;

class TableFrame {
 public:
  /// `load_record` puts a record, counted from 1, into the fields.
  TableFrame(NumberList& numbers, RecordGrid& grid, std::function<void(int)> load_record);
  /// The same with a list that cannot be typed into; its entries are "1" to `last`.
  TableFrame(ChoiceList& numbers, int last, RecordGrid& grid, std::function<void(int)> load_record);

  /// Marks the record in the grid and puts it into the fields.
  void load_record(int number);
  /// Names the record in the number list and loads it.
  void go_to(int number);

  /// The number that a save goes on to from the record with this index, counted from 0. The walk never arrives at the
  /// last record by itself: from the one before the last it stays where it is.
  [[nodiscard]] int following_number(int index) const;

 private:
  void picked(int number);

  int last_;
  std::function<void(int)> show_number_;
  RecordGrid& grid_;
  std::function<void(int)> load_record_;
};

}  // namespace ecr
