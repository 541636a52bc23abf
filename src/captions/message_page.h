#pragma once
// The tab of the display: five messages that run through it, when they begin and how fast they run.

#include <array>

#include <QGroupBox>
#include <QWidget>

#include "captions/lcd_picture.h"
#include "image/prg_mode.h"
#include "widgets/captions.h"
#include "widgets/choice_list.h"
#include "widgets/controls.h"
#include "widgets/field.h"

namespace ecr {

/// A message's field in the image, and its controls.
struct MessageRow {
  Text<42> PrgModeImage::*text;
  const char* field;
  const char* label;
  Key key;
  std::string_view built_in;
};

// In the order of the image.
// clang-format off
inline constexpr std::array<MessageRow, 5> message_rows = {{
    {&PrgModeImage::OffModeScrollMessage, "E_OffModeScrollMessage", "L_OffModeScrollMessage",
     Key::FRM_CAPTION_OFF_MODE_SCROLL_MESSAGE_MSG, "OFF mode"},
    {&PrgModeImage::PrgXZ_ModeScrollMessage, "E_PrgXZ_ModeScrollMessage", "L_PrgXZ_ModeScrollMessage",
     Key::FRM_CAPTION_PRG_X_Z_MODE_SCROLL_MESSAGE_MSG, "PRG, X, Z mode"},
    {&PrgModeImage::RegModeSalesScrollMessage, "E_RegModeSalesScrollMessage", "L_RegModeSalesScrollMessage",
     Key::FRM_CAPTION_REG_MODE_SALES_SCROLL_MESSAGE_MSG, "REG mode, sales"},
    {&PrgModeImage::IdleAMScrollMessage, "E_IdleAMScrollMessage", "L_IdleAMScrollMessage",
     Key::FRM_CAPTION_IDLE_AM_SCROLL_MESSAGE_MSG, "Idle, AM"},
    {&PrgModeImage::IdlePMScrollMessage, "E_IdlePMScrollMessage", "L_IdlePMScrollMessage",
     Key::FRM_CAPTION_IDEL_PM_MODE_SCROLL_MESSAGE_MSG, "Idle, PM"},
}};
// clang-format on

class MessagePage : public QWidget {
  Q_OBJECT

 public:
  MessagePage(Captions& captions, QWidget* parent);

  /// Fills the lists with their choices.
  void carica_messaggi();
  /// Shows the working image's messages, or its codes in the lists; a code that a list lacks selects nothing.
  void show_messages();
  void show_codes();
  /// Puts the screen into the working image; the messages, then the codes.
  void store() const;

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void lay_out(Captions& captions);
  void show_on_display(std::size_t message);
  void play(bool on);

  std::array<Field*, message_rows.size()> fields_{};
  ChoiceList* Cmb_WaitTime;
  ChoiceList* Cmb_ScrollSpeed;
  QGroupBox* F_LcdOption;
  LcdPicture* display_;
  CommandButton* C_Play;
  std::size_t on_display_ = 0;
};

}  // namespace ecr
