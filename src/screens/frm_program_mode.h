#pragma once
// The menu of the programmable areas, and the import of a customization.

#include "screens/menu.h"

namespace ecr {

class FrmProgramMode : public MenuScreen {
  Q_OBJECT

 public:
  FrmProgramMode();

 private:
  void import_captions();
};

}  // namespace ecr
