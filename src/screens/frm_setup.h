#pragma once
// The Setup menu: from a loaded programming to every editor, and the reset of the register.

#include "screens/menu.h"

namespace ecr {

class FrmSetup : public MenuScreen {
  Q_OBJECT

 public:
  FrmSetup();

  void load() override;

 private:
  void reset_register();
};

}  // namespace ecr
