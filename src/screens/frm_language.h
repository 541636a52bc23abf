#pragma once
// The choice of the program's language.

#include <array>
#include <cstdint>
#include <functional>

#include <QDialog>
#include <QRadioButton>

#include "widgets/captions.h"
#include "widgets/controls.h"

class QGroupBox;

namespace ecr {

class FrmLanguage : public QDialog {
  Q_OBJECT

 public:
  /// `changed` runs when another language was taken, to lay the new texts on the screen below.
  FrmLanguage(QWidget* over, std::function<void()> changed);

 private:
  void choose(std::uint8_t number);
  void save();

  QGroupBox* Frame1;
  std::array<QRadioButton*, 8> Opt_Lang;
  std::array<Picture*, 8> I_Lang;
  CommandButton* C_Save;
  CommandButton* C_Annulla;
  Captions captions_;
  std::function<void()> changed_;
  std::uint8_t chosen_;
};

}  // namespace ecr
