#pragma once
// The operating mode: how the register calculates, and what a sale allows.

#include "editors/option_screen.h"

namespace ecr {

extern const OptionScreenTable working_mode;

class FrmWorkingMode : public OptionScreen {
  Q_OBJECT

 public:
  FrmWorkingMode() : OptionScreen{working_mode} {}
};

}  // namespace ecr
