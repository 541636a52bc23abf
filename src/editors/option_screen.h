#pragma once
// A screen that is one option table and nothing else.

#include <span>
#include <string_view>

#include "editors/option_list.h"
#include "editors/option_table.h"
#include "widgets/editor_frame.h"

namespace ecr {

struct OptionScreenTable {
  std::string_view name;  ///< the screen's, as the system has it
  Key title{};
  std::string_view title_caption;
  Key heading{};
  std::string_view heading_caption;
  std::span<const OptionRow> rows;
  /// In front of a fault in the run log.
  std::string_view load_prefix;
  std::string_view save_prefix;
  SavesTo saves_to = SavesTo::image_file;
};

class OptionScreen : public Screen {
  Q_OBJECT

 public:
  /// `table` outlives the screen.
  explicit OptionScreen(const OptionScreenTable& table);

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return lists_.first(); }

 private:
  EditorFrame frame_;
  OptionLists lists_;
};

}  // namespace ecr
