#pragma once
// The register's amounts, counters and serial ports. The decimals that are saved here are those with which the whole
// program shows amounts from then on.

#include <array>

#include "editors/option_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmSystemOption : public Screen {
  Q_OBJECT

 public:
  FrmSystemOption();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return lists_.first(); }

 private:
  [[nodiscard]] QWidget* make_lists(const QString& name, std::size_t first_row);
  [[nodiscard]] QWidget* make_counters();
  void save();

  EditorFrame frame_;
  OptionLists lists_;
  /// E_ConsecutiveReceipt, E_InvoiceNumber, E_Z1CounterSetting, E_Z2CounterSetting, E_GTCounterSetting.
  std::array<Field*, 5> counters_{};
};

}  // namespace ecr
