#pragma once
// The frame that every editor has: heading, captions from the catalogue, Save, Send, Back, help.
//
// An editor shows the working image itself and keeps no copy. Save writes the screen into the image and the image to
// its file. Send sends the file, not what stands on the screen. Back closes without a question.
//
// Load shows each field that can be shown, whatever becomes of the others. Save is done as a whole or not at all: where
// it ends with a fault, memory is put back as it was and no file is written.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "widgets/captions.h"
#include "widgets/controls.h"
#include "widgets/screen.h"
#include "widgets/screen_frame.h"

namespace ecr {

class Field;

/// What the Save of an editor writes.
enum class SavesTo : std::uint8_t {
  image_file,  ///< PRG_MODE.BIN
  item_file,   ///< PRG_PLU.BIN
  /// The working image alone changes; PRG_MODE.BIN follows when another editor saves, and is what Send sends.
  no_file,
};

class EditorFrame {
 public:
  enum class WhileSending { buttons_disabled, buttons_enabled };
  enum class AfterFault {
    memory_put_back,
    memory_stays,  ///< what the routine has stored before the fault goes to the file with the next save
  };

  EditorFrame(Screen& screen, ScreenFrame::Corner corner);

  /// The routine of C_Salva: it stores what the controls hold, calls write_file, and shows what follows. A fault that
  /// it raises is logged after "<Screen> Salva: ", or another prefix. One that comes before write_file takes back all
  /// that was stored, in the image, in the item table and in the decimals of amounts.
  void on_save(std::function<void()> save, AfterFault after_fault = AfterFault::memory_put_back);
  /// Writes the file that this editor saves to; from here on the save stands. A file that cannot be written is silent.
  void write_file();
  /// The routine of C_Invia_Ecr, in place of sending the image and the items; it answers whether that went through.
  void send_with(std::function<bool()> send, WhileSending buttons);
  /// Runs behind a send, when the buttons are enabled again.
  void after_send(std::function<void()> after) { after_send_ = std::move(after); }
  /// Where C_Salva writes something else than the image's file.
  void saves_to(SavesTo file) { saves_to_ = file; }
  /// Tab leads through these controls, then over Save, Send and Back to the manual.
  void tab_through(std::vector<QWidget*> controls) const;
  /// Other words in front of a fault in loading or saving, where a screen's own are not "<Screen> Form_load: " and
  /// "<Screen> Salva: ".
  void log_prefixes(std::string load, std::string save);

  /// Runs the load routine between the corner picture and the end; a fault is logged and the screen stays with what it
  /// has.
  void load(const std::function<void()>& routine);

  /// For load routines: one part of a load. A fault in it is logged as one of the load, which goes on after it.
  void load_part(const std::function<void()>& part) const;
  /// For load routines: puts the text of what is stored into a field. Where `text` raises a fault the field stands
  /// empty, and counts as unread; see Field::show_stored.
  void load_field(Field& field, const std::function<QString()>& text) const;

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
  [[nodiscard]] QString file_name() const;

  Screen& screen_;
  std::function<void()> save_;
  AfterFault after_fault_ = AfterFault::memory_put_back;
  bool save_stands_ = false;  ///< in a save: the file has been written
  std::function<bool()> send_;
  std::function<void()> after_send_;
  WhileSending while_sending_ = WhileSending::buttons_disabled;
  SavesTo saves_to_ = SavesTo::image_file;
  std::string load_prefix_;
  std::string save_prefix_;
};

}  // namespace ecr
