#pragma once
// Which reports are read from the register, and the run that turns them into CSV files.

#include <cstdint>
#include <map>

#include <QCheckBox>

#include "widgets/field.h"
#include "widgets/screen.h"
#include "widgets/screen_frame.h"

namespace ecr {

class FrmReportExport : public Screen {
  Q_OBJECT

 public:
  FrmReportExport();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return C_Annulla; }

 private:
  void save() const;
  void run_export();

  ScreenFrame frame_;
  Captions captions_;
  std::map<std::uint8_t, QCheckBox*> Chk_Report;  ///< by report number
  QLabel* L_MPS_Level;
  Field* Txt_MPS_Min;
  QLabel* L_MPS_Min;
  QLabel* L_Progress;  ///< which files the last export could not write
  CommandButton* C_Annulla;
  CommandButton* C_View;
  CommandButton* C_Salva;
  CommandButton* C_Export;
};

}  // namespace ecr
