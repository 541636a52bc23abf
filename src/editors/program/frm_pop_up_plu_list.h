#pragma once
// The five pop-up lists of the register: 20 item codes each, on five tabs. They lie in the item table's file, and are
// saved and sent with it.

#include <array>

#include <QTabWidget>

#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmPopUpPluList : public Screen {
  Q_OBJECT

 public:
  FrmPopUpPluList();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return frame_.C_Annulla; }

 private:
  static constexpr std::size_t lists = 5;
  static constexpr std::size_t entries = 20;

  [[nodiscard]] QWidget* make_list(std::size_t list);
  void carica_messaggi();
  void save();

  EditorFrame frame_;
  QTabWidget* Tab_PopUpPluList;
  // E_Plu1 to E_Plu5 and L_Plu1 to L_Plu5, whose members have the indices 1 to 20.
  std::array<std::array<Field*, entries>, lists> E_Plu{};
  std::array<std::array<QLabel*, entries>, lists> L_Plu{};
};

}  // namespace ecr
