#pragma once
// The frame that every editor has: heading, captions from the catalogue, Save, Send, Back, help.
//
// An editor shows the working image itself and keeps no copy. Save writes the screen into the image and the image to
// its file. Send sends the file, not what stands on the screen. Back closes without a question.

#include <functional>
#include <string>
#include <vector>

#include "widgets/captions.h"
#include "widgets/controls.h"
#include "widgets/screen.h"
#include "widgets/screen_frame.h"

namespace ecr {

class EditorFrame {
 public:
  enum class WhileSending { buttons_disabled, buttons_enabled };

  EditorFrame(Screen& screen, ScreenFrame::Corner corner);

  /// The routine of C_Salva. A fault that it raises is logged behind "<Screen> Salva: ", or another prefix.
  void on_save(std::function<void()> save);
  /// The routine of C_Invia_Ecr, in place of sending the image and the items; it answers whether that went through.
  void send_with(std::function<bool()> send, WhileSending buttons);
  /// Runs behind a send, when the buttons are enabled again.
  void after_send(std::function<void()> after) { after_send_ = std::move(after); }
  /// The file that C_Salva writes, where it is not the image's; its name without the folder.
  void changes_file(const QString& file) { file_ = file; }
  /// C_Salva writes no file: the working image alone changes. Send still sends the file.
  void saves_to_no_file() { saves_to_file_ = false; }
  /// Tab leads through these controls, then over Save, Send and Back to the manual.
  void tab_through(std::vector<QWidget*> controls) const;
  /// Other words in front of a fault in loading or saving, where a screen's own are not "<Screen> Form_load: " and
  /// "<Screen> Salva: ".
  void log_prefixes(std::string load, std::string save);

  /// Runs the load routine between the corner picture and the end; a fault is logged and the screen stays with what it
  /// has.
  void load(const std::function<void()>& routine);

  ScreenFrame top;
  QVBoxLayout* body;  ///< where the editor lays its controls
  Captions captions;
  CommandButton* C_Salva;
  CommandButton* C_Invia_Ecr;
  CommandButton* C_Annulla;

 private:
  void run_save();
  void run_send();
  void enable_buttons(bool enabled);

  Screen& screen_;
  std::function<void()> save_;
  std::function<bool()> send_;
  std::function<void()> after_send_;
  WhileSending while_sending_ = WhileSending::buttons_disabled;
  bool saves_to_file_ = true;
  QString file_ = QStringLiteral("PRG_MODE.BIN");
  std::string load_prefix_;
  std::string save_prefix_;
};

}  // namespace ecr
