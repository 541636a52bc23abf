#include "captions/short_caption_page.h"

#include <utility>

#include <QHBoxLayout>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "core/register_text.h"
#include "image/prg_mode.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int caption_width = 10;

enum Column { definition, custom, columns };

}  // namespace

ShortCaptionPage::ShortCaptionPage(Captions& captions, std::function<void()> changed, std::function<void(bool)> enabled,
                                   QWidget* parent)
    : QWidget{parent},
      changed_{std::move(changed)},
      enabled_{std::move(enabled)},
      FG_Caption{new RecordGrid{QStringLiteral("FG_Caption"), this}},
      E_Valore{new CaptionLine{QStringLiteral("E_Valore"), caption_width, this}},
      L_Desc{make_label(QStringLiteral("L_Desc"), this, E_Valore)},
      ChK_Double2{new QCheckBox{this}},
      L_Preview2{make_label(QStringLiteral("L_Preview2"), this)},
      slip_{new PaperSlip{this}},
      E_ValorePrev{slip_->add_row(QStringLiteral("E_ValorePrev"), caption_width)},
      C_Apply{new CommandButton{QStringLiteral("C_Apply"), this}},
      C_Cancel{new CommandButton{QStringLiteral("C_Cancel"), this}} {
  ChK_Double2->setObjectName(QStringLiteral("ChK_Double2"));
  captions.add(*L_Desc, Key::FRM_CAPTION_L_DESC, "Description");
  captions.add(*ChK_Double2, Key::FRM_CAPTION_CHK_DOUBLE, "Double width");
  add_double_key(*ChK_Double2, *this);
  captions.add(*L_Preview2, Key::FRM_CAPTION_PREVIEW, "Preview");
  captions.add(*C_Apply, Key::FRM_CAPTION_C_APPLY, "Apply");
  captions.add(*C_Cancel, Key::FRM_CAPTION_C_CANCEL, "Cancel");
  lay_out();

  FG_Caption->on_select([this](int row) { edit(row); });
  connect(FG_Caption, &QTableView::activated, this, [this](const QModelIndex& index) {
    // Behind Apply and Cancel the row is still the current one, and nothing has selected it anew.
    if (!E_Valore->isEnabled()) edit(index.row() + 1);
    E_Valore->setFocus(Qt::OtherFocusReason);
  });
  E_Valore->print_double_while([this] { return ChK_Double2->isChecked(); }, "E_Valore_KeyPress ");
  E_Valore->on_change([this] { changed_(); });
  E_Valore->enter_goes_to(C_Apply);
  C_Apply->on_click([this] { apply(); });
  C_Cancel->on_click([this] { leave_editing(); });
}

void ShortCaptionPage::lay_out() {
  // Both columns of the row that is edited are marked, not only what stands behind a number.
  FG_Caption->setItemDelegate(new QStyledItemDelegate{FG_Caption});
  FG_Caption->setAccessibleName(own_words(OwnText::short_caption_list));
  FG_Caption->cells().resize(short_captions, columns);
  FG_Caption->cells().set_headings({QStringLiteral("Definition"), QStringLiteral("Custom Definition")});
  E_Valore->setFont(register_face());
  L_Desc->setWordWrap(true);
  L_Desc->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
  // A definition of any length leaves the rest in its place.
  L_Desc->setMinimumSize(1, 2 * L_Desc->fontMetrics().lineSpacing());
  L_Desc->setMaximumHeight(4 * L_Desc->fontMetrics().lineSpacing());

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(C_Apply);
  buttons->addWidget(C_Cancel);
  buttons->addStretch(1);
  auto* right = new QVBoxLayout;
  right->setSpacing(8);
  right->addWidget(L_Desc);
  right->addWidget(E_Valore);
  right->addWidget(ChK_Double2);
  right->addSpacing(8);
  right->addWidget(L_Preview2);
  right->addWidget(slip_);
  right->addSpacing(8);
  right->addLayout(buttons);
  right->addStretch(1);
  auto* both = new QHBoxLayout{this};
  both->setSpacing(24);
  both->addWidget(FG_Caption, 3);
  both->addLayout(right, 2);
}

void ShortCaptionPage::fill(const CaptionDescriptions& descriptions) {
  RecordModel& cells = FG_Caption->cells();
  for (std::size_t i = 0; i < short_captions; ++i) {
    const int row = static_cast<int>(i) + 1;
    cells.set_cell(row, definition, field_text(descriptions.captions[i]));
    cells.set_cell(row, custom, field_text(sostituzione_from_ecr(PrgMode.Caption[i].view())));
  }
  cells.refreshed();
  FG_Caption->fit_columns(definition);
}

void ShortCaptionPage::show_on_paper() {
  E_ValorePrev->show_line(E_Valore->text());
}

void ShortCaptionPage::ShortCaptionWriteble_ena(bool on) {
  for (QWidget* control :
       {static_cast<QWidget*>(E_Valore), static_cast<QWidget*>(L_Desc), static_cast<QWidget*>(C_Cancel),
        static_cast<QWidget*>(C_Apply), static_cast<QWidget*>(L_Preview2), static_cast<QWidget*>(ChK_Double2)}) {
    control->setEnabled(on);
  }
  enabled_(on);
}

QString ShortCaptionPage::caption(int row) const {
  return FG_Caption->cells().cell(row, custom);
}

void ShortCaptionPage::edit(int row) {
  row_ = row;
  ShortCaptionWriteble_ena(true);
  E_Valore->show_text(caption(row));
  // The definition is a text, not a caption with marked letters.
  set_caption(*L_Desc, FG_Caption->cells().cell(row, definition).replace(u'&', QStringLiteral("&&")));
}

void ShortCaptionPage::apply() {
  FG_Caption->cells().set_cell(row_, custom, E_Valore->text());
  FG_Caption->cells().refreshed();
  leave_editing();
  changed_();
}

void ShortCaptionPage::leave_editing() {
  // A button that is disabled would hand the focus on to whatever comes next.
  FG_Caption->setFocus(Qt::OtherFocusReason);
  ShortCaptionWriteble_ena(false);
}

}  // namespace ecr
