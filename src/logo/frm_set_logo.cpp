#include "logo/frm_set_logo.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QImage>
#include <QVBoxLayout>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/shell.h"
#include "logo/file_path.h"
#include "logo/journal_file.h"
#include "logo/paper_preview.h"
#include "logo/send_logo.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

/// The filter as the toolkit writes it: what stands in front of the bar, whose brackets hold the pattern.
const QString bitmap_filter = QStringLiteral("File Bitmap(*.bmp)");
const QString journal_filter = QStringLiteral("File Journal(*.bin)");

QString what_fits() {
  return own_words(OwnText::logo_that_fits).arg(logo_bitmap_size).arg(logo_dots).arg(logo_lines);
}

/// What the person should know of a bitmap that has the right length, before the conversion finds it out.
QString note_about(const QImage& picture) {
  if (picture.isNull()) return own_words(OwnText::logo_cannot_be_shown);
  return own_words(picture.depth() == 1 ? OwnText::logo_size : OwnText::logo_too_many_colours)
      .arg(picture.width())
      .arg(picture.height());
}

}  // namespace

FrmSetLogo::FrmSetLogo()
    : Screen{QStringLiteral("FrmSetLogo")},
      frame_{*this, ScreenFrame::Corner::none},
      C_Sfoglia{new CommandButton{QStringLiteral("C_Sfoglia"), this}},
      C_EJ{new CommandButton{QStringLiteral("C_EJ"), this}},
      C_Annulla{new CommandButton{QStringLiteral("C_Annulla"), this}},
      C_Invia_Ecr{new CommandButton{QStringLiteral("C_Invia_Ecr"), this}},
      L_percorso{new FilePath{QStringLiteral("L_percorso"), own_words(OwnText::no_file_chosen), this}},
      I_Anteprima{new PaperPreview{QStringLiteral("I_Anteprima"), own_words(OwnText::logo_place), this}},
      L_Nota{make_label(QStringLiteral("L_Nota"), this)} {
  captions_.add(*this, Key::FRM_SET_LOGO_TITLE, "SET LOGO");
  captions_.add(*frame_.L_Titolo, Key::FRM_SET_LOGO_L_TITOLO, "SET LOGO");
  captions_.add(*C_Sfoglia, Key::FRM_SET_LOGO_C_SFOGLIA, "Browse");
  Captions::fix(*C_EJ, "EJ");
  captions_.add(*C_Annulla, Key::FRM_ALL_C_ANNULLA, "Back");
  captions_.add(*C_Invia_Ecr, Key::FRM_ALL_C_INVIA_ECR, "Send to ECR");
  C_EJ->setToolTip(own_words(OwnText::open_journal));
  L_percorso->setAccessibleName(own_words(OwnText::path));
  I_Anteprima->setAccessibleName(own_words(OwnText::preview));
  C_Invia_Ecr->emphasise();
  lay_out();
  C_Sfoglia->on_click([this] { browse(); });
  C_EJ->on_click([this] { open_journal(); });
  C_Annulla->on_click([this] { unload(); });
  C_Invia_Ecr->on_click([this] { send(); });
}

void FrmSetLogo::lay_out() {
  auto* file = new QHBoxLayout;
  file->setSpacing(10);
  file->addWidget(C_Sfoglia);
  file->addWidget(C_EJ);
  file->addSpacing(6);
  file->addWidget(L_percorso, 1);
  frame_.body->addLayout(file);

  L_Nota->setWordWrap(true);
  make_hint(*L_Nota);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(24);
  middle->addWidget(I_Anteprima, 0, Qt::AlignTop);
  middle->addWidget(L_Nota, 1, Qt::AlignTop);
  frame_.body->addLayout(middle, 1);
  frame_.body->addStretch(1);

  auto* bar = new QHBoxLayout;
  bar->addWidget(C_Annulla);
  bar->addStretch(1);
  bar->addWidget(C_Invia_Ecr);
  frame_.body->addLayout(bar);
}

void FrmSetLogo::load() {
  frame_.load_band(QStringLiteral("GRAPHIC.BIN"));
  captions_.lay();
  select_text_ = message_or(Key::FRM_SET_LOGO_SEL_FILE_SEND_MSG, "Select the file to send");
  programmed_text_ = message_or(Key::FRM_SET_LOGO_PROGRAMMED_MSG, "Logo Programmed");
  blank_text_ = message_or(Key::FRM_SET_LOGO_PATH_ERROR_MSG,
                           "Is not spossible send a logo that has a Space (' ') in the source path.");
  Comm_Percorso.name = QStringLiteral("Comm_Percorso");
  Comm_Percorso.filter = bitmap_filter;
  Comm_Percorso.title = QStringLiteral("Percorso Immagine");
  // The sample that comes with the installation.
  Comm_Percorso.folder = path_for_toolkit(host_path(Global::PathApp + "Logo"));
  L_Nota->setText(what_fits());
}

QString FrmSetLogo::choose() {
  // The journal's filter stays when it comes to the next bitmap: whoever types a name may leave the filter aside.
  const std::optional<std::string> chosen = choose_file_to_open(this, Comm_Percorso);
  if (!chosen.has_value()) return {};
  const QString path = path_for_toolkit(host_path(*chosen));
  Comm_Percorso.folder = QFileInfo{path}.path();
  return path;
}

void FrmSetLogo::show_path(const QString& path) {
  path_ = backslash_path(path_of_toolkit(path));
  L_percorso->show_path(path);
}

void FrmSetLogo::browse() {
  show_path({});
  I_Anteprima->show_picture({});
  L_Nota->setText(what_fits());
  const QString path = choose();
  if (path.isEmpty()) return;
  const std::string bytes = logo_bitmap(backslash_path(path_of_toolkit(path)));
  if (bytes.empty()) {
    tell(BoxKind::plain, "Image to upload not correct");
    return;
  }
  show_path(path);
  const QImage picture = picture_of_bitmap(bytes);
  I_Anteprima->show_picture(picture);
  QString note = note_about(picture);
  if (path.contains(u' ')) {
    note += QStringLiteral("\n\n") + own_words(OwnText::logo_blank_in_path);
  }
  L_Nota->setText(note);
  C_Invia_Ecr->setFocus(Qt::OtherFocusReason);
}

void FrmSetLogo::open_journal() {
  Comm_Percorso.filter = journal_filter;
  Comm_Percorso.title = QStringLiteral("Percorso File giornale");
  const QString path = choose();
  // A journal that is not there would be made by reading it.
  if (path.isEmpty() || !QFileInfo{path}.isFile()) return;
  show_path(path);
  I_Anteprima->show_picture({});
  Read_EJ(path_);
  L_Nota->setText(own_words(OwnText::journal_records).arg(Ej.Records.size()));
}

void FrmSetLogo::send() {
  if (path_.empty()) {
    tell(BoxKind::information, select_text_);
    return;
  }
  if (path_.find(' ') != std::string::npos) {
    tell(BoxKind::critical, blank_text_);
    return;
  }
  const BusyPointer busy;
  const SplitPath path = split_path(path_);
  if (Send_LogoToEcr(Global::PathApp, path.folder, path.name)) tell(BoxKind::plain, programmed_text_);
}

}  // namespace ecr
