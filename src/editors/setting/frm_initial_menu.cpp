#include "editors/setting/frm_initial_menu.h"

#include "core/codecs.h"
#include "core/global.h"
#include "core/shell.h"
#include "editors/setting/initial_menu_rows.h"
#include "editors/store_field.h"
#include "image/prg_mode.h"
#include "lang/register_language.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int business_id_digits = 10;

}  // namespace

FrmInitialMenu::FrmInitialMenu()
    : Screen{QStringLiteral("FrmInitialMenu")},
      frame_{*this, ScreenFrame::Corner::picture},
      lists_{*this, frame_.captions, setting::initial_menu_rows},
      Cmb_Lingua{lists_.list("Cmb_Lingua")},
      E_BusinessID{new Field{QStringLiteral("E_BusinessID"), this}},
      L_BusinessID{make_label(QStringLiteral("L_BusinessID"), this, E_BusinessID)},
      C_SettaLingua{new CommandButton{QStringLiteral("C_SettaLingua"), this}} {
  frame_.captions.add(*this, Key::FRM_INITIAL_MENU_TITLE, "Initial Setup");
  frame_.captions.add(*frame_.top.L_Titolo, Key::FRM_INITIAL_MENU_L_TITOLO, "INITIAL SETUP MENU");
  frame_.captions.add(*L_BusinessID, Key::FRM_INITIAL_MENU_L_BUSINESS_ID_MSG, "Business ID");
  E_BusinessID->setMaxLength(business_id_digits);
  E_BusinessID->let_in(Field::Keys::digits);
  Captions::fix(*C_SettaLingua, "Setta Lingua");
  C_SettaLingua->on_click([this] { static_cast<void>(Setta_Lingua(Cmb_Lingua->number())); });

  QGridLayout* grid = lists_.block();
  const int below = grid->rowCount();
  grid->addWidget(L_BusinessID, below, 0);
  grid->addWidget(E_BusinessID, below, 1);
  frame_.body->addLayout(grid);
  frame_.body->addWidget(C_SettaLingua, 0, Qt::AlignLeft);
  frame_.body->addStretch(1);
  L_BusinessID->hide();
  E_BusinessID->hide();
  C_SettaLingua->hide();

  std::vector<QWidget*> order{lists_.lists().begin(), lists_.lists().end()};
  order.push_back(C_SettaLingua);
  frame_.tab_through(std::move(order));
  frame_.log_prefixes("FrmInitialMenu form_load: ", "FrmInitialMenu Salva: ");
  frame_.on_save([this] { save(); });
}

void FrmInitialMenu::load() {
  frame_.load([this] {
    lists_.load();
    E_BusinessID->show_stored(screen_text(bcds_to_number(PrgMode.InitialMenuBlock5)));
    L_BusinessID->hide();
    E_BusinessID->hide();
    C_SettaLingua->setVisible(Global::DebugMode);
  });
}

void FrmInitialMenu::save() {
  const std::uint8_t language = Cmb_Lingua->number();
  if (language != PrgMode.Set00_InitialMenu) {
    tell(BoxKind::information,
         message_or(Key::MSG_CHANGE_LANGUAGE_STR, "Changing the language resets all ECR parameters"));
    PrgMode.Set00_InitialMenu = language;
    // Without the file the register changes its language all the same, and keeps its texts.
    static_cast<void>(Setta_Lingua(language));
  }
  lists_.save();
  store_digits(*E_BusinessID, PrgMode.InitialMenuBlock5);
  frame_.write_file();
}

}  // namespace ecr
