#pragma once
// The register's two percentage keys: rate, highest rate, and whether the key adds or takes off.

#include <array>
#include <utility>

#include "editors/option_list.h"
#include "image/prg_mode.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmPercentageMenu : public Screen {
  Q_OBJECT

 public:
  FrmPercentageMenu();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return frame_.C_Annulla; }

 private:
  /// The fields, and where each one's rate is stored; in the order in which they are loaded and saved.
  [[nodiscard]] std::array<std::pair<Field*, Bcd<2>*>, 4> rates() const;
  void save();

  EditorFrame frame_;
  Field* E_P1KeyRate;
  Field* E_P1KeyRateLimit;
  Field* E_P2KeyRate;
  Field* E_P2KeyRateLimit;
  OptionLists signs_;
};

}  // namespace ecr
