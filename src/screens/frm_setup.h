#pragma once
// The Setup menu: from a loaded programming to every editor; the reset of the register; the export of its texts.

#include "screens/menu.h"

namespace ecr {

class FrmSetup : public MenuScreen {
  Q_OBJECT

 public:
  FrmSetup();

  void load() override;

 private:
  void reset_register();
  void export_captions();
};

}  // namespace ecr
