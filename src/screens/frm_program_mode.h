#pragma once
// The menu of the programmable areas.

#include "screens/menu.h"

namespace ecr {

class FrmProgramMode : public MenuScreen {
  Q_OBJECT

 public:
  FrmProgramMode();
};

}  // namespace ecr
