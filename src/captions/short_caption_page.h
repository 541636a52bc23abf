#pragma once
// The tab of the 78 short captions: a grid with what each one means and how it reads, and a field to change one.

#include <functional>
#include <string>

#include <QCheckBox>
#include <QLabel>
#include <QWidget>

#include "captions/caption_line.h"
#include "captions/paper.h"
#include "fields/caption_meanings.h"
#include "widgets/captions.h"
#include "widgets/controls.h"
#include "widgets/record_grid.h"

namespace ecr {

class ShortCaptionPage : public QWidget {
  Q_OBJECT

 public:
  /// `changed` runs when the field or the grid has changed; `enabled` when the editing is switched on or off.
  ShortCaptionPage(Captions& captions, std::function<void()> changed, std::function<void(bool)> enabled,
                   QWidget* parent);

  /// Fills the grid: the meanings, and the captions of the working image.
  void fill(const CaptionDescriptions& descriptions);
  void clear_field() { E_Valore->show_text({}); }
  /// Prints the field on its piece of paper.
  void show_on_paper();

  /// Switches the editing of one caption on or off.
  void ShortCaptionWriteble_ena(bool on);

  /// A caption as the grid has it, counted from 1.
  [[nodiscard]] QString caption(int row) const;

 private:
  void lay_out();
  void edit(int row);
  void apply();
  void leave_editing();

  std::function<void()> changed_;
  std::function<void(bool)> enabled_;
  RecordGrid* FG_Caption;
  CaptionLine* E_Valore;
  QLabel* L_Desc;
  QCheckBox* ChK_Double2;
  QLabel* L_Preview2;
  PaperSlip* slip_;
  PreviewRow* E_ValorePrev;
  CommandButton* C_Apply;
  CommandButton* C_Cancel;
  int row_ = 0;  ///< the caption that is edited, 0 for none
};

}  // namespace ecr
