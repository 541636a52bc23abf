#pragma once
// The logo: a bitmap is chosen, looked at on paper, and sent to the register. The same chooser opens a journal file.

#include <string>

#include <QString>

#include "widgets/captions.h"
#include "widgets/choose_file.h"
#include "widgets/controls.h"
#include "widgets/screen.h"
#include "widgets/screen_frame.h"

namespace ecr {

class FilePath;
class PaperPreview;

class FrmSetLogo : public Screen {
  Q_OBJECT

 public:
  FrmSetLogo();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return C_Sfoglia; }

 private:
  /// The one file chooser of the screen: whoever sets its filter and title sets them for both buttons.
  void lay_out();
  /// The path that the person chose, as the toolkit writes it; empty for none.
  QString choose();
  void browse();
  void open_journal();
  void send();
  void show_path(const QString& path);

  ScreenFrame frame_;
  Captions captions_;
  CommandButton* C_Sfoglia;
  CommandButton* C_EJ;
  CommandButton* C_Annulla;
  CommandButton* C_Invia_Ecr;
  FilePath* L_percorso;
  PaperPreview* I_Anteprima;
  QLabel* L_Nota;
  Chooser Comm_Percorso;
  std::string path_;  // in the form of the folder variables
  std::string select_text_;
  std::string programmed_text_;
  std::string blank_text_;
};

}  // namespace ecr
