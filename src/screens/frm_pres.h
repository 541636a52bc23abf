#pragma once
// The start screen: finds the register's port, chooses the language and the model.
//
// It stays below all other screens for the whole run; closing it ends the program.

#include <cstdint>
#include <optional>

#include <QPointer>
#include <QTimer>

#include "link/ports.h"
#include "widgets/captions.h"
#include "widgets/controls.h"
#include "widgets/field.h"
#include "widgets/screen.h"

class QGroupBox;

namespace ecr {

class WaitPanel;

class FrmPres : public Screen {
  Q_OBJECT

 public:
  FrmPres();

  void load() override;
  void unload() override;
  [[nodiscard]] QWidget* first_focus() override;
  void carica_messaggi();

  /// The first search for the port, and the driver where none answers. The program calls it once the screen has been
  /// seen, so that the colours can be.
  void first_discovery();

 private:
  /// Runs Test_Com to its end, or until the person who waits for it gives it up. Answers whether a port was found.
  bool discover(bool skipLog);
  void timer_tick();
  void model_clicked(std::uint8_t model);
  /// The card that tells how far the search is, from which it can be given up.
  void show_wait();
  void open_waiting_model();
  void show_number(int port);
  void show_colour(PortColour colour);
  void show_test(const PortTest& test);
  void show_linked_register();

  QGroupBox* F_Titolo;
  QLabel* L_Titolo2;
  QLabel* L_ComPort;
  Field* E_ComPort;
  CommandButton* C_Z300;
  CommandButton* C_Z320;
  CommandButton* C_LinguaSel;
  Picture* I_lingua;
  CommandButton* C_Exit;
  Picture* I_logo;
  Picture* I_Vermanto;
  Picture* I_Help;
  QLabel* L_Emulated;
  QTimer* Timer_TestCom;
  Captions captions_;
  bool discovering_ = false;
  bool given_up_ = false;
  /// The test on its way; none while the devices are listed.
  std::optional<PortTest> test_;
  /// A model that was clicked during a search, and the card that is up meanwhile.
  std::optional<std::uint8_t> waiting_model_;
  QPointer<WaitPanel> wait_;
};

}  // namespace ecr
