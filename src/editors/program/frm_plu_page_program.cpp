#include "editors/program/frm_plu_page_program.h"

#include <QGridLayout>

#include "core/codecs.h"
#include "editors/program/code_field.h"
#include "editors/store_field.h"
#include "image/prg_mode.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

const Decimal largest_code{9'999'999'999'999};

struct PageRow {
  const char* control;
  Key key;
  const char* built_in;
};
constexpr PageRow page_rows[] = {{"L_PluPage1", Key::FRM_PLU_PAGE_PROGRAM_L_PLU_PAGE1, "PLU Page 1:"},
                                 {"L_PluPage2", Key::FRM_PLU_PAGE_PROGRAM_L_PLU_PAGE2, "PLU Page 2:"},
                                 {"L_PluPage3", Key::FRM_PLU_PAGE_PROGRAM_L_PLU_PAGE3, "PLU Page 3"}};

}  // namespace

FrmPluPageProgram::FrmPluPageProgram()
    : Screen{QStringLiteral("FrmPluPageProgram")}, frame_{*this, ScreenFrame::Corner::picture} {
  frame_.captions.add(*this, Key::FRM_PLU_PAGE_PROGRAM_TITLE, "Plu Page Program");
  frame_.captions.add(*frame_.top.L_Titolo, Key::FRM_PLU_PAGE_PROGRAM_L_TITOLO, "PLU PAGE PROGRAM");
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(12);
  grid->setColumnStretch(4, 1);
  for (int i = 0; i < 3; ++i) {
    const PageRow& row = page_rows[i];
    auto* field = new Field{member_name("E_PluPage", i), this};
    auto* page = make_label(QString::fromLatin1(row.control), this, field);
    auto* first = make_label(member_name("L_Desc", i), this);
    auto* most = make_label(member_name("L_PageMax", i), this);
    make_hint(*most);
    make_code_field(*field, largest_code);
    field->setFixedWidth(180);
    frame_.captions.add(*page, row.key, row.built_in);
    frame_.captions.add(*first, Key::FRM_PLU_PAGE_PROGRAM_L_DESC, "PLU Start #");
    frame_.captions.add(*most, Key::MSG_MAX_9999999999999, "(Max Value 9999999999999)");
    grid->addWidget(page, i, 0);
    grid->addWidget(first, i, 1);
    grid->addWidget(field, i, 2);
    grid->addWidget(most, i, 3);
    E_PluPage[static_cast<std::size_t>(i)] = field;
  }
  frame_.body->addLayout(grid);
  frame_.body->addStretch(1);
  frame_.log_prefixes("FrmPluPageProgram form_load: ", "FrmPluPageProgram Salva: ");
  frame_.on_save([this] { save(); });
}

void FrmPluPageProgram::load() {
  frame_.load([this] {
    for (std::size_t i = 0; i < E_PluPage.size(); ++i) {
      E_PluPage[i]->show_stored(screen_text(bcds_to_number(PrgMode.PluPage[i])));
    }
  });
}

void FrmPluPageProgram::save() {
  for (std::size_t i = 0; i < E_PluPage.size(); ++i) {
    store_digits(*E_PluPage[i], PrgMode.PluPage[i]);
  }
  frame_.write_file();
}

}  // namespace ecr
