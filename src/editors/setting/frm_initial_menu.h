#pragma once
// The register's first settings: language, date and time, key tone, winding motor, rounding, mode.
//
// Saving another language fills all texts of the image from that language's file. The business id is loaded and saved
// but never seen.

#include "editors/option_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmInitialMenu : public Screen {
  Q_OBJECT

 public:
  FrmInitialMenu();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return lists_.first(); }

 private:
  void save();

  EditorFrame frame_;
  OptionLists lists_;
  ChoiceList* Cmb_Lingua;
  Field* E_BusinessID;
  QLabel* L_BusinessID;
  CommandButton* C_SettaLingua;  ///< fills the texts without a save; with the option DEBUG alone
};

}  // namespace ecr
