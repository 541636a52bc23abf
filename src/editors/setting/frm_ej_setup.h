#pragma once
// The electronic journal of the register.

#include "editors/option_screen.h"

namespace ecr {

extern const OptionScreenTable ej_setup;

class FrmEJSetup : public OptionScreen {
  Q_OBJECT

 public:
  FrmEJSetup() : OptionScreen{ej_setup} {}
};

}  // namespace ecr
