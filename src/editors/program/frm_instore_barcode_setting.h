#pragma once
// The ten rules by which the register reads barcodes that a shop prints itself.

#include "image/prg_mode.h"
#include "widgets/choice_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"
#include "widgets/record_grid.h"
#include "widgets/table_frame.h"

namespace ecr {

class FrmInstoreBarcodeSetting : public Screen {
  Q_OBJECT

 public:
  FrmInstoreBarcodeSetting();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return Cmb_InstoreBarcodeSettingNumber; }

 private:
  void lay_out();
  void wire();
  void carica_messaggi();
  void Carica_Griglia();
  void Carica_IBS(int rule);
  void save();

  EditorFrame frame_;
  ChoiceList* Cmb_InstoreBarcodeSettingNumber;
  RecordGrid* FG_InstoreBarcode;
  TableFrame table_;
  Field* E_FlagCode;
  // Lists of bare numbers; they show whatever number the image holds.
  ChoiceList* Cmb_DigitsOfFlag;
  ChoiceList* Cmb_DigitsOfPrice;
  ChoiceList* Cmb_NumberOfFc;
  ChoiceList* Cmb_CodeLenght;
  ChoiceList* Cmb_PriceCheckDigit;
  ChoiceList* Cmb_NewsPaper;

  // The finished choices, built once a load; the grid shows their labels.
  QStringList code_lengths_;
  QStringList yes_no_;
};

}  // namespace ecr
