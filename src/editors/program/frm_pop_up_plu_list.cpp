#include "editors/program/frm_pop_up_plu_list.h"

#include <QGridLayout>

#include "core/codecs.h"
#include "editors/program/code_field.h"
#include "editors/store_field.h"
#include "image/prg_plu.h"
#include "lang/own_texts.h"
#include "link/transfer.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

// One digit more than a code can have.
const Decimal largest_entry{99'999'999'999'999};
constexpr int rows_of_a_tab = 10;

QString array_member(const char* array, std::size_t list, std::size_t entry) {
  const QByteArray name = array + QByteArray::number(static_cast<int>(list + 1));
  return member_name(name.constData(), static_cast<int>(entry + 1));
}

}  // namespace

FrmPopUpPluList::FrmPopUpPluList()
    : Screen{QStringLiteral("FrmPopUpPluList")},
      frame_{*this, ScreenFrame::Corner::picture},
      Tab_PopUpPluList{new QTabWidget{this}} {
  frame_.captions.add(*this, Key::FRM_POP_UP_PLU_LIST_TITLE_MSG, "Pop Up Plu List");
  frame_.captions.add(*frame_.top.L_Titolo, Key::FRM_POP_UP_PLU_LIST_TITLE_MSG, "POP UP PLU LIST");
  Tab_PopUpPluList->setObjectName(QStringLiteral("Tab_PopUpPluList"));
  for (std::size_t list = 0; list < lists; ++list) {
    Tab_PopUpPluList->addTab(make_list(list), own_words(OwnText::list_number).arg(list + 1));
  }
  frame_.body->addWidget(Tab_PopUpPluList, 1);
  frame_.saves_to(SavesTo::item_file);
  frame_.on_save([this] { save(); });
  frame_.send_with(Send_PrgPluToEcr, EditorFrame::WhileSending::buttons_enabled);
}

QWidget* FrmPopUpPluList::make_list(std::size_t list) {
  auto* page = new QWidget{Tab_PopUpPluList};
  auto* outside = new QVBoxLayout{page};
  outside->setContentsMargins(20, 16, 20, 16);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(6);
  for (std::size_t entry = 0; entry < entries; ++entry) {
    auto* field = new Field{array_member("E_Plu", list, entry), page};
    make_code_field(*field, largest_entry);
    field->setFixedWidth(180);
    QLabel* label = make_label(array_member("L_Plu", list, entry), page, field);
    const int row = static_cast<int>(entry) % rows_of_a_tab;
    const int side = static_cast<int>(entry) / rows_of_a_tab;
    grid->addWidget(label, row, side * 3);
    grid->addWidget(field, row, side * 3 + 1);
    E_Plu[list][entry] = field;
    L_Plu[list][entry] = label;
  }
  grid->setColumnMinimumWidth(2, 48);
  grid->setColumnStretch(5, 1);
  outside->addLayout(grid);
  outside->addStretch(1);
  return page;
}

void FrmPopUpPluList::load() {
  frame_.load([this] {
    Tab_PopUpPluList->setAccessibleName(windowTitle());
    carica_messaggi();
    for (std::size_t list = 0; list < lists; ++list) {
      for (std::size_t entry = 0; entry < entries; ++entry) {
        E_Plu[list][entry]->show_stored(screen_text(bcds_to_number(PrgPlu.Lists[list][entry])));
      }
    }
  });
}

void FrmPopUpPluList::carica_messaggi() {
  const QString text = screen_text(message(Key::FRM_ALL_PLU_MSG));
  for (std::size_t list = 0; list < lists; ++list) {
    for (std::size_t entry = 0; entry < entries; ++entry) {
      // The built-in labels count from 1, those from the catalogue from 0.
      const QString caption =
          text.isEmpty() ? QStringLiteral("PLU %1:").arg(entry + 1) : text + u' ' + QString::number(entry);
      set_caption(*L_Plu[list][entry], caption);
    }
  }
}

void FrmPopUpPluList::save() {
  for (std::size_t list = 0; list < lists; ++list) {
    for (std::size_t entry = 0; entry < entries; ++entry) {
      store_digits(*E_Plu[list][entry], PrgPlu.Lists[list][entry]);
    }
  }
  frame_.write_file();
}

}  // namespace ecr
