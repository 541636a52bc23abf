#pragma once
// The register's nine means of payment, all on the screen at once: total, check and charge in frames, six cards on
// tabs.

#include <vector>

#include <QTabWidget>

#include "editors/option_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmTenderMenuSetting : public Screen {
  Q_OBJECT

 public:
  FrmTenderMenuSetting();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return media_.front().E_Name; }

 private:
  /// Members of the control arrays have the indices 0 to 8.
  struct Medium {
    QLabel* L_Nome;
    Field* E_Name;
    OptionLists lists;
  };

  void make_medium(int index);
  /// The five controls of a medium side by side, each under its label.
  [[nodiscard]] QLayout* strip(const Medium& medium) const;
  void save();

  EditorFrame frame_;
  QTabWidget* Tab_Credit;
  std::vector<Medium> media_;
};

}  // namespace ecr
