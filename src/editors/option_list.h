#pragma once
// Rows of an option table on a screen: their controls, what they show, and what they save.

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <QGridLayout>
#include <QLabel>
#include <QStringList>
#include <QWidget>

#include "editors/option_table.h"
#include "widgets/captions.h"
#include "widgets/choice_list.h"

namespace ecr {

class OptionLists {
 public:
  /// Makes the label and the list of each row on `parent`: the screen, or the frame or tab on which they are to lie.
  /// `rows` outlives this.
  OptionLists(QWidget& parent, Captions& captions, std::span<const OptionRow> rows);
  /// The same for one record of a table: the controls are members `index` of their arrays, and the rows' offsets count
  /// from `record`, a place in the image.
  OptionLists(QWidget& parent, Captions& captions, std::span<const OptionRow> rows, int index, std::size_t record);

  /// Lays the rows from `first` on, `count` of them, one below the other: labels in `column`, lists beside them.
  void lay_out(QGridLayout& grid, int first_line = 0, int column = 0, std::size_t first = 0,
               std::size_t count = static_cast<std::size_t>(-1)) const;
  /// All rows in one block of its own, of even width; `columns` side by side, filled downwards.
  [[nodiscard]] QGridLayout* block(int columns = 1) const;

  /// Builds the entries after the catalogue, fills the lists, shows what the image holds, and hides what the chosen
  /// model lacks. The working image changes where a row mends it.
  void load() const;
  /// Shows what the record at this place of the image holds, in lists that are filled.
  void show(std::size_t record) const;

  /// Writes each list's number to its place in the working image, in the order of the rows.
  void save() const { save(record_); }
  void save(std::size_t record) const;

  [[nodiscard]] ChoiceList* list(std::string_view control) const;
  [[nodiscard]] QLabel* label(std::string_view control) const;
  [[nodiscard]] ChoiceList* first() const { return controls_.front().list; }
  [[nodiscard]] const std::vector<ChoiceList*>& lists() const { return lists_; }

 private:
  struct Controls {
    const OptionRow* row;
    QLabel* label;
    ChoiceList* list;
  };
  [[nodiscard]] const Controls& named(std::string_view control) const;

  std::size_t record_ = 0;
  std::vector<Controls> controls_;
  std::vector<ChoiceList*> lists_;
};

/// The finished entry of a choice, after the catalogue.
[[nodiscard]] QString entry_of(const Choice& choice);
[[nodiscard]] QStringList entries_of(std::span<const Choice> choices);

/// The position of the entry that stands for what the working image holds, none where no entry does. `record` is what
/// the row's place counts from.
[[nodiscard]] std::optional<int> shown_entry(const OptionRow& row, std::size_t record = 0);

}  // namespace ecr
