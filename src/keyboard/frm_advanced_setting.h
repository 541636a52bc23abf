#pragma once
// The advanced settings, on three tabs: the reports that a chain key runs, the function that each key holds, and the
// functions that a pop-up key offers.

#include <array>
#include <cstdint>
#include <vector>

#include <QCheckBox>
#include <QTabBar>
#include <QTabWidget>

#include "keyboard/free_layout.h"
#include "keyboard/function_list.h"
#include "keyboard/keyboard_picture.h"
#include "keyboard/option_boxes.h"
#include "widgets/editor_frame.h"

namespace ecr {

class FrmAdvancedSetting : public Screen {
  Q_OBJECT

 public:
  FrmAdvancedSetting();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return Tab_AdvancedOption; }

 private:
  using Boxes = std::vector<QCheckBox*>;  ///< in the order of their table

  [[nodiscard]] QWidget* chain_page();
  [[nodiscard]] QWidget* keyboard_page();
  [[nodiscard]] QWidget* pop_page();
  [[nodiscard]] QWidget* pop_list(int list);
  [[nodiscard]] QCheckBox* make_box(const OptionBox& row, const QString& name, QWidget* parent);
  void wire();

  void carica_messaggi();
  /// Shows the reports of a chain, 0 to 4, and all five pop-up lists as the image has them.
  void carica_chain(std::uint8_t chain);
  void go_to_chain(int tab);
  /// The keyboard of the chosen model is the one that is seen.
  void show_own_keyboard();
  [[nodiscard]] KeyboardPicture& own_keyboard() const;
  [[nodiscard]] std::uint8_t chosen_function() const { return Cmb_KeyList->number(); }
  void assign(std::uint8_t key, std::uint8_t code);
  void restore_default();
  void restore_default_pop(int list);
  void save();

  EditorFrame frame_;
  QTabWidget* Tab_AdvancedOption;
  QTabBar* Tab_Chain = nullptr;
  Boxes chain_;
  QTabWidget* SSTab1 = nullptr;
  std::array<Boxes, pop_list_count> pop_;
  std::array<CommandButton*, pop_list_count> C_RestoreDefaultPop{};
  FunctionList* Cmb_KeyList = nullptr;
  FunctionTag* L_Preview = nullptr;
  CommandButton* C_RestoreDefault = nullptr;
  CommandButton* C_nuovi_default = nullptr;
  QTabWidget* Tab_Keyboard = nullptr;
  std::array<KeyboardPicture*, 2> keyboards_{};  ///< L_key and L_key2, by model number

  std::uint8_t current_chain_ = 0;
  FreeLayout layout_;
};

}  // namespace ecr
