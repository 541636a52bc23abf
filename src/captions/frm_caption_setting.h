#pragma once
// Every text that the register prints or shows: the lines of its receipts and slips, its 78 short captions, and the
// messages that run through its display.

#include <QTabWidget>

#include "captions/message_page.h"
#include "captions/receipt_page.h"
#include "captions/short_caption_page.h"
#include "widgets/editor_frame.h"

namespace ecr {

class FrmCaptionSetting : public Screen {
  Q_OBJECT

 public:
  FrmCaptionSetting();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return Tab_Print; }

 private:
  void carica_messaggi();
  void load_lines();
  /// Reads DescCaption.ini into the grid and the labels. Answers whether the file is there.
  bool load_descriptions();
  /// Prints everything anew that stands in a field, where it has changed.
  void carica_all_caption();
  void save();

  EditorFrame frame_;
  QTabWidget* Tab_Print;
  ReceiptPage* receipt_;
  ShortCaptionPage* short_captions_;
  MessagePage* messages_;
};

}  // namespace ecr
