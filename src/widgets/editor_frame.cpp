#include "widgets/editor_frame.h"

#include <utility>

#include <QHBoxLayout>

#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "image/programming_copy.h"
#include "link/transfer.h"
#include "widgets/field.h"
#include "widgets/glyphs.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"
#include "widgets/session_mark.h"

namespace ecr {

EditorFrame::EditorFrame(Screen& screen, ScreenFrame::Corner corner)
    : top{screen, corner},
      body{new QVBoxLayout},
      C_Salva{new CommandButton{QStringLiteral("C_Salva"), &screen}},
      C_Invia_Ecr{new CommandButton{QStringLiteral("C_Invia_Ecr"), &screen}},
      C_Annulla{new CommandButton{QStringLiteral("C_Annulla"), &screen}},
      screen_{screen},
      send_{[] { return Send_PrgModeToEcr(true, true); }},
      load_prefix_{page_bytes(screen.objectName()) + " Form_load: "},
      save_prefix_{page_bytes(screen.objectName()) + " Salva: "} {
  captions.add(*C_Salva, Key::FRM_ALL_C_SALVA, "Save Setup");
  captions.add(*C_Annulla, Key::FRM_ALL_C_ANNULLA, "Back");
  captions.add(*C_Invia_Ecr, Key::FRM_ALL_C_INVIA_ECR, "Send to ECR");
  C_Salva->emphasise();
  C_Salva->on_click([this] { run_save(); });
  C_Invia_Ecr->on_click([this] { run_send(); });
  C_Annulla->on_click([&screen] { screen.unload(); });

  body->setSpacing(12);
  top.body->addLayout(body, 1);
  auto* bar = new QHBoxLayout;
  bar->setSpacing(10);
  bar->addWidget(C_Annulla);
  bar->addStretch(1);
  bar->addWidget(C_Salva);
  bar->addWidget(C_Invia_Ecr);
  top.body->addLayout(bar);
}

void EditorFrame::on_save(std::function<void()> save, AfterFault after_fault) {
  save_ = std::move(save);
  after_fault_ = after_fault;
}

void EditorFrame::write_file() {
  if (saves_to_ == SavesTo::image_file) Write_PrgMode();
  if (saves_to_ == SavesTo::item_file) Write_PrgPlu();
  save_stands_ = true;
}

QString EditorFrame::file_name() const {
  return saves_to_ == SavesTo::item_file ? QStringLiteral("PRG_PLU.BIN") : QStringLiteral("PRG_MODE.BIN");
}

void EditorFrame::send_with(std::function<bool()> send, WhileSending buttons) {
  send_ = std::move(send);
  while_sending_ = buttons;
}

void EditorFrame::log_prefixes(std::string load, std::string save) {
  load_prefix_ = std::move(load);
  save_prefix_ = std::move(save);
}

void EditorFrame::tab_through(std::vector<QWidget*> controls) const {
  controls.insert(controls.end(), {C_Salva, C_Invia_Ecr, C_Annulla, top.I_Help});
  set_tab_chain(controls);
}

void EditorFrame::load(const std::function<void()>& routine) {
  const QString file = file_name();
  top.load_band(file);
  C_Salva->setIcon(glyph(Glyph::to_file, C_Salva->palette().color(QPalette::HighlightedText)));
  C_Invia_Ecr->setIcon(glyph(Glyph::to_register, text_plain()));
  if (saves_to_ != SavesTo::no_file) C_Salva->setToolTip(QStringLiteral("→ ") + screen_text(Global::PathDati) + file);
  C_Invia_Ecr->setToolTip(file + QStringLiteral(" → ") + port_and_model());
  captions.lay();
  guarded(load_prefix_, routine);
}

void EditorFrame::load_part(const std::function<void()>& part) const {
  guarded(load_prefix_, part);
}

void EditorFrame::load_field(Field& field, const std::function<QString()>& text) const {
  QString shown;
  load_part([&] { shown = text(); });
  field.show_stored(shown);
}

void EditorFrame::run_save() {
  if (!save_) return;
  const ProgrammingCopy before;
  save_stands_ = false;
  const bool done = guarded(save_prefix_, save_);
  if (!done && !save_stands_ && after_fault_ == AfterFault::memory_put_back) before.put_back();
}

void EditorFrame::enable_buttons(bool enabled) {
  for (CommandButton* button : {C_Annulla, C_Invia_Ecr, C_Salva}) button->setEnabled(enabled);
}

void EditorFrame::run_send() {
  {
    const BusyPointer busy;
    // A button that is disabled would hand its focus on to some field; the screen itself keeps it meanwhile.
    if (while_sending_ == WhileSending::buttons_disabled) {
      screen_.setFocus(Qt::OtherFocusReason);
      enable_buttons(false);
    }
    if (!send_()) tell(BoxKind::critical, MsgProgramKo);
    if (while_sending_ == WhileSending::buttons_disabled) {
      enable_buttons(true);
      C_Invia_Ecr->setFocus(Qt::OtherFocusReason);
    }
  }
  if (after_send_) after_send_();
}

}  // namespace ecr
