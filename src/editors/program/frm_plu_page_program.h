#pragma once
// The three PLU pages of the keyboard: for each the code that its first key stands for.

#include <array>

#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmPluPageProgram : public Screen {
  Q_OBJECT

 public:
  FrmPluPageProgram();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return frame_.C_Annulla; }

 private:
  void save();

  // Members of the control arrays have the indices 0 to 2.
  EditorFrame frame_;
  std::array<Field*, 3> E_PluPage{};
};

}  // namespace ecr
