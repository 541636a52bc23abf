#include "editors/program/frm_tender_menu_setting.h"

#include <cstddef>

#include <QGridLayout>
#include <QGroupBox>
#include <QTabBar>

#include "core/register_text.h"
#include "core/text.h"
#include "editors/form_grid.h"
#include "editors/program/shared_choices.h"
#include "image/prg_mode.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int media = 9;
constexpr int media_in_frames = 3;
constexpr int tender_name_width = 12;

struct MediumCaption {
  Key key;
  const char* built_in;
};
// The first three are captions of frames, the others of tabs.
constexpr MediumCaption medium_captions[media] = {
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT0, "TOTAL"},  {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT1, "CHECK"},
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT2, "CHARGE"}, {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT3, "CARD 1"},
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT4, "CARD 2"}, {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT5, "CARD 3"},
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT6, "CARD 4"}, {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT7, "CARD 5"},
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT8, "CARD 6"}};

constexpr Choice amounts[] = {
    {.digit = 0, .literal = "0. NOT COMPULSORY", .text = Key::FRM_TENDER_MENU_SETTING_CMB_TENDERING_AMOUNT_0_MSG},
    {.digit = 1, .literal = "1. COMPULSORY", .text = Key::FRM_TENDER_MENU_SETTING_CMB_TENDERING_AMOUNT_1_MSG}};
constexpr Choice changes[] = {
    {.digit = 0, .literal = "0. YES", .text = Key::FRM_TENDER_MENU_SETTING_CMB_CHANGE_ALLOWED_0_MSG},
    {.digit = 1, .literal = "1. NO", .text = Key::FRM_TENDER_MENU_SETTING_CMB_CHANGE_ALLOWED_1_MSG}};
constexpr Choice drawers[] = {{.digit = 0, .literal = "0. OPEN", .text = Key::FRM_ALL_OPEN},
                              {.digit = 1, .literal = "1. CLOSED", .text = Key::FRM_ALL_CLOSED}};

// Places count from the medium's record.
constexpr std::size_t options = offsetof(TenderRecord, Options);
constexpr OptionRow tender_rows[] = {
    {.control = "Cmb_Halo",
     .label = "L_Hdlo",
     .key = Key::FRM_TENDER_MENU_SETTING_L_HDLO,
     .caption = "HDLO",
     .choices = digit_limits,
     .place = byte_at(offsetof(TenderRecord, Halo))},
    {.control = "Cmb_TenderingAmount",
     .label = "L_TenderingAmount",
     .key = Key::FRM_TENDER_MENU_SETTING_L_TENDERING_AMOUNT,
     .caption = "Amount",
     .choices = amounts,
     .place = bit_at(options, 0)},
    {.control = "Cmb_ChangeAllowed",
     .label = "L_ChangeAllowed",
     .key = Key::FRM_TENDER_MENU_SETTING_L_CHANGE_ALLOWED,
     .caption = "Change Allowed",
     .choices = changes,
     .place = bit_at(options, 1)},
    {.control = "Cmb_Drawer",
     .label = "L_Drawer",
     .key = Key::FRM_TENDER_MENU_SETTING_L_DRAWER,
     .caption = "Drawer",
     .choices = drawers,
     .place = bit_at(options, 2)},
};
static_assert(sound(tender_rows, sizeof(TenderRecord)));
static_assert(owned_bits(tender_rows, options) == 0x07, "the upper bits are nobody's");

// The widths of a strip, so that the controls of all media stand in line.
constexpr int strip_stretches[] = {5, 6, 7, 4, 4};

std::size_t record_of(int medium) {
  return offsetof(PrgModeImage, Tender) + sizeof(TenderRecord) * static_cast<std::size_t>(medium);
}

/// What a name keeps of a longer text. The field itself has no limit.
void cut_name(Field& field) {
  if (field.text().size() <= tender_name_width) return;
  const int cursor = field.cursorPosition();
  field.show_text(field.text().left(tender_name_width));
  field.setCursorPosition(cursor);
}

}  // namespace

FrmTenderMenuSetting::FrmTenderMenuSetting()
    : Screen{QStringLiteral("FrmTenderMenuSetting")},
      frame_{*this, ScreenFrame::Corner::none},
      Tab_Credit{new QTabWidget{this}} {
  frame_.captions.add(*this, Key::FRM_TENDER_MENU_SETTING_TITLE, "Program Payment Media");
  Tab_Credit->setObjectName(QStringLiteral("Tab_Credit"));
  media_.reserve(media);
  for (int i = 0; i < media; ++i) make_medium(i);
  frame_.body->addWidget(Tab_Credit);
  frame_.body->addStretch(1);
  frame_.log_prefixes("FrmTenderMenuSetting form_load: ", "FrmTenderMenuSetting Salva: ");
  frame_.on_save([this] { save(); });

  // Down the frames, over the tabs into the one in front.
  std::vector<QWidget*> order;
  for (int i = 0; i < media; ++i) {
    const Medium& medium = media_[static_cast<std::size_t>(i)];
    if (i == media_in_frames) order.push_back(Tab_Credit);
    order.push_back(medium.E_Name);
    order.insert(order.end(), medium.lists.lists().begin(), medium.lists.lists().end());
  }
  frame_.tab_through(std::move(order));
}

void FrmTenderMenuSetting::make_medium(int index) {
  const MediumCaption& caption = medium_captions[index];
  QWidget* place = nullptr;
  if (index < media_in_frames) {
    auto* box = new QGroupBox{this};
    box->setObjectName(member_name("F_Payment", index));
    frame_.captions.add(*box, caption.key, caption.built_in);
    frame_.body->addWidget(box);
    place = box;
  } else {
    place = new QWidget;
    Tab_Credit->addTab(place, screen_text(caption.built_in));
  }

  auto* name = new Field{member_name("E_Name", index), place};
  QLabel* label = make_label(member_name("L_Nome", index), place, name);
  frame_.captions.add(*label, Key::FRM_TENDER_MENU_SETTING_L_NOME, "Name");
  name->on_entered([name] {
    name->show_text(trim_end(name->text()));
    name->selectAll();
  });
  name->on_change([name] { cut_name(*name); });
  media_.push_back({label, name, OptionLists{*place, frame_.captions, tender_rows, index, record_of(index)}});
  place->setLayout(strip(media_.back()));
}

QLayout* FrmTenderMenuSetting::strip(const Medium& medium) const {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(4);
  grid->addWidget(medium.L_Nome, 0, 0);
  grid->addWidget(medium.E_Name, 1, 0);
  grid->setColumnStretch(0, strip_stretches[0]);
  int column = 1;
  for (const OptionRow& row : tender_rows) {
    grid->addWidget(medium.lists.label(row.control), 0, column);
    grid->addWidget(medium.lists.list(row.control), 1, column);
    grid->setColumnStretch(column, strip_stretches[column]);
    ++column;
  }
  return grid;
}

void FrmTenderMenuSetting::load() {
  frame_.load([this] {
    frame_.top.L_Titolo->setText(windowTitle());
    Tab_Credit->setAccessibleName(windowTitle());
    for (int i = media_in_frames; i < media; ++i) {
      Tab_Credit->setTabText(i - media_in_frames, caption_text(medium_captions[i].key, medium_captions[i].built_in));
    }
    for (std::size_t i = 0; i < media_.size(); ++i) {
      media_[i].E_Name->show_text(field_text(sostituzione_from_ecr(trim_both(PrgMode.Tender[i].Name.view()))));
      media_[i].lists.load();
    }
    Tab_Credit->setCurrentIndex(0);
  });
}

void FrmTenderMenuSetting::save() {
  for (std::size_t i = 0; i < media_.size(); ++i) {
    PrgMode.Tender[i].Name.set(sostituzione_to_ecr(codes_of(media_[i].E_Name->text())));
    media_[i].lists.save();
  }
  frame_.write_file();
}

}  // namespace ecr
