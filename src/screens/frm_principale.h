#pragma once
// The main menu: opens a programming session for the chosen model, from the defaults, from the register, or from what
// the last session left.

#include "widgets/captions.h"
#include "widgets/controls.h"
#include "widgets/screen.h"
#include "widgets/screen_frame.h"

namespace ecr {

class FrmPrincipale : public Screen {
  Q_OBJECT

 public:
  /// `port_text` is what the start screen's port field shows.
  explicit FrmPrincipale(const QString& port_text);
  ~FrmPrincipale() override;

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return C_ModificaProgrammazione; }

  /// The import from an old register. No button is bound to it.
  void import_old_configuration();

 private:
  void new_programming();
  void update_programming();
  void take_from_register();
  void take_from_files();
  void open_setup();

  ScreenFrame frame_;
  Captions captions_;
  CommandButton* C_NuovaProgrammazione;
  CommandButton* C_ModificaProgrammazione;
  CommandButton* C_Logo;
  CommandButton* C_Back;
  QLabel* L_Release_Fw;
  QString port_text_;
};

}  // namespace ecr
