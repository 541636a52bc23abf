#pragma once
// The clerk system: whether there is one, and how clerks sign on.

#include "editors/option_screen.h"

namespace ecr {

extern const OptionScreenTable clerk_menu_setup;

class FrmClerkMenuSetup : public OptionScreen {
  Q_OBJECT

 public:
  FrmClerkMenuSetup() : OptionScreen{clerk_menu_setup} {}
};

}  // namespace ecr
