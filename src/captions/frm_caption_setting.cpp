#include "captions/frm_caption_setting.h"

#include <array>

#include <QTabBar>

#include "captions/parent_of_pages.h"
#include "core/model.h"
#include "core/register_text.h"
#include "core/shell.h"
#include "image/prg_mode.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

// The short captions that the receipt on the paper shows, counted from 1.
constexpr int total_caption = 1;
constexpr int cash_caption = 3;
constexpr int change_caption = 7;

using Lines = std::vector<CaptionLine*>;

template <std::size_t Count>
void show_lines(const std::array<Text<24>, Count>& stored, const Lines& lines) {
  for (std::size_t i = 0; i < Count; ++i) lines[i]->show_text(field_text(sostituzione_from_ecr(stored[i].view())));
}

template <std::size_t Count>
void store_lines(const Lines& lines, std::array<Text<24>, Count>& stored) {
  for (std::size_t i = 0; i < Count; ++i) stored[i].set(sostituzione_to_ecr(codes_of(lines[i]->text())));
}

}  // namespace

FrmCaptionSetting::FrmCaptionSetting()
    : Screen{QStringLiteral("FrmCaptionSetting")},
      frame_{*this, ScreenFrame::Corner::none},
      Tab_Print{new QTabWidget{this}},
      receipt_{new ReceiptPage{frame_.captions, [this] { carica_all_caption(); }, parent_of_pages(*Tab_Print)}},
      short_captions_{new ShortCaptionPage{frame_.captions, [this] { carica_all_caption(); },
                                           [this](bool on) {
                                             // The labels of the other lines go with the editing of a short caption.
                                             for (QLabel* label : receipt_->labels(LineGroup::other)) {
                                               label->setEnabled(on);
                                             }
                                           },
                                           parent_of_pages(*Tab_Print)}},
      messages_{new MessagePage{frame_.captions, parent_of_pages(*Tab_Print)}} {
  frame_.captions.add(*this, Key::FRM_CAPTION_SETTING_MODE_TITLE, "Caption Setup Mode");
  Tab_Print->setObjectName(QStringLiteral("Tab_Print"));
  Tab_Print->tabBar()->setFocusPolicy(Qt::StrongFocus);
  for (QWidget* page :
       {static_cast<QWidget*>(receipt_), static_cast<QWidget*>(short_captions_), static_cast<QWidget*>(messages_)}) {
    Tab_Print->addTab(page, {});
  }
  frame_.body->addWidget(Tab_Print, 1);
  // From the tabs' controls on to the buttons, and round again.
  setTabOrder(frame_.C_Annulla, frame_.top.I_Help);
  frame_.on_save([this] { save(); });
}

void FrmCaptionSetting::load() {
  frame_.load([this] {
    frame_.top.L_Titolo->setText(windowTitle());
    load_lines();
    carica_messaggi();
    carica_all_caption();
    const bool described = load_descriptions();
    short_captions_->clear_field();
    messages_->show_messages();
    short_captions_->ShortCaptionWriteble_ena(false);
    messages_->show_codes();
    carica_all_caption();
    if (!described) {
      tell(BoxKind::warning, message_or(Key::FRM_CAPTION_LANG_NOT_DEFINE_MSG_DEF,
                                        "Warning! The Language file definition is not present"));
    }
  });
}

void FrmCaptionSetting::carica_messaggi() {
  Tab_Print->setTabText(0, caption_text(Key::FRM_CAPTION_TAB_PRINT1, "ON RECEIPT"));
  Tab_Print->setTabText(1, caption_text(Key::FRM_CAPTION_TAB_PRINT2, "CUSTOM TEXT"));
  Tab_Print->setTabText(2, caption_text(Key::FRM_CAPTION_TAB_PRINT3, "SCROLL MESSAGE"));
  Tab_Print->setAccessibleName(windowTitle());
  receipt_->setAccessibleName(Tab_Print->tabText(0));
  receipt_->carica_messaggi();
  messages_->carica_messaggi();
}

void FrmCaptionSetting::load_lines() {
  show_lines(PrgMode.ReceiptHeader, receipt_->lines(LineGroup::header));
  show_lines(PrgMode.ReceiptFooter, receipt_->lines(LineGroup::footer));
  show_lines(PrgMode.Abr, receipt_->lines(LineGroup::abbreviations));
  show_lines(PrgMode.ExtraInvoice, receipt_->lines(LineGroup::extra_invoice));
  show_lines(PrgMode.Other, receipt_->lines(LineGroup::other));
}

bool FrmCaptionSetting::load_descriptions() {
  CaptionDescriptions descriptions;
  const bool present = Read_DescCaption(descriptions);
  // Without the file, or beyond its lines, the captions themselves stand in the grid all the same: a save takes them
  // from there.
  short_captions_->fill(descriptions);
  const auto& labels = receipt_->labels(LineGroup::other);
  for (std::size_t i = 0; i < descriptions.others.size(); ++i) {
    set_caption(*labels[i], field_text(descriptions.others[i]).replace(u'&', QStringLiteral("&&")));
  }
  return present;
}

void FrmCaptionSetting::carica_all_caption() {
  receipt_->show_on_paper();
  receipt_->paper().show_sale({trim_end(short_captions_->caption(total_caption)),
                               trim_end(short_captions_->caption(cash_caption)),
                               trim_end(short_captions_->caption(change_caption))});
  short_captions_->show_on_paper();
}

void FrmCaptionSetting::save() {
  store_lines(receipt_->lines(LineGroup::header), PrgMode.ReceiptHeader);
  store_lines(receipt_->lines(LineGroup::footer), PrgMode.ReceiptFooter);
  store_lines(receipt_->lines(LineGroup::abbreviations), PrgMode.Abr);
  // A model without them keeps the invoice lines that it has, whatever the screen shows.
  if (chosen_model().has_extra_invoice) {
    store_lines(receipt_->lines(LineGroup::extra_invoice), PrgMode.ExtraInvoice);
  }
  store_lines(receipt_->lines(LineGroup::other), PrgMode.Other);
  for (std::size_t i = 0; i < PrgMode.Caption.size(); ++i) {
    PrgMode.Caption[i].set(sostituzione_to_ecr(codes_of(short_captions_->caption(static_cast<int>(i) + 1))));
  }
  messages_->store();
  frame_.write_file();
}

}  // namespace ecr
