#pragma once
// The four VAT rates of the register.

#include <array>

#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmSetVatRate : public Screen {
  Q_OBJECT

 public:
  FrmSetVatRate();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return frame_.C_Annulla; }

 private:
  void save();

  // Members of the control arrays have the indices 1 to 4.
  EditorFrame frame_;
  std::array<QLabel*, 4> L_VatRate{};
  std::array<Field*, 4> E_VatRate{};
  std::array<QLabel*, 4> L_MaxValue{};
};

}  // namespace ecr
