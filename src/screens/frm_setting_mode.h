#pragma once
// The menu of the machine settings.

#include "screens/menu.h"

namespace ecr {

class FrmSettingMode : public MenuScreen {
  Q_OBJECT

 public:
  FrmSettingMode();
};

}  // namespace ecr
