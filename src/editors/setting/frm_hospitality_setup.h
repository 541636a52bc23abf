#pragma once
// Table service: what is compulsory, and what counts. Its Save changes the working image alone.

#include "editors/option_screen.h"

namespace ecr {

extern const OptionScreenTable hospitality_setup;

class FrmHospitalitySetup : public OptionScreen {
  Q_OBJECT

 public:
  FrmHospitalitySetup() : OptionScreen{hospitality_setup} {}
};

}  // namespace ecr
