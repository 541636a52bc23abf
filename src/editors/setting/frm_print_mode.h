#pragma once
// What the register prints, and in which font: 47 lists on two levels of tabs.

#include <array>
#include <cstddef>
#include <optional>

#include <QTabWidget>

#include "editors/option_list.h"
#include "widgets/editor_frame.h"

namespace ecr {

class FrmPrintMode : public Screen {
  Q_OBJECT

 public:
  FrmPrintMode();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return pages_.front()->first(); }

 private:
  void add_pages();
  void order_tabs();

  EditorFrame frame_;
  QTabWidget* Tab_Print;
  QTabWidget* Tab_PrintReceipt = nullptr;  ///< on the first tab of the other one
  std::array<std::optional<OptionLists>, 6> pages_;
};

}  // namespace ecr
