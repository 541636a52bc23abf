#include "keyboard/frm_advanced_setting.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>

#include "core/global.h"
#include "core/model.h"
#include "core/run_log.h"
#include "image/prg_mode.h"
#include "keyboard/key_default.h"
#include "keyboard/key_positions.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

struct TabCaption {
  Key key;
  const char* built_in;
};
constexpr std::array<TabCaption, 3> tab_captions = {
    {{Key::FRM_ADVANCED_SETTINF_TAB1_ADVANCED_OPTION, "CHAIN REPORT SELECT"},
     {Key::FRM_ADVANCED_SETTINF_TAB2_ADVANCED_OPTION, "FREE KEY LAYOUT"},
     {Key::FRM_ADVANCED_SETTINF_TAB3_ADVANCED_OPTION, "POP UP KEY SELECT"}}};

constexpr int chain_rows = 5;
constexpr int pop_rows = 11;

struct KeyboardTab {
  const char* picture;
  const char* caption;
};
// By model number.
constexpr std::array<KeyboardTab, model_rows.size()> keyboard_tabs = {{{"L_key", "ECR Z300"}, {"L_key2", "ECRZ320"}}};

/// The page that all tabs of a bar have in common, with the line that every page has at its top.
class CommonPage : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter{this};
    painter.fillRect(0, 0, width(), 1, line_colour());
  }
};

QTabWidget* make_tabs(const char* name, const char* what, QWidget* parent) {
  auto* tabs = new QTabWidget{parent};
  tabs->setObjectName(QString::fromLatin1(name));
  tabs->setAccessibleName(QString::fromLatin1(what));
  return tabs;
}

}  // namespace

FrmAdvancedSetting::FrmAdvancedSetting()
    : Screen{QStringLiteral("FrmAdvancedSetting")},
      frame_{*this, ScreenFrame::Corner::none},
      Tab_AdvancedOption{make_tabs("Tab_AdvancedOption", "Advanced settings", this)},
      layout_{[this](std::uint8_t key, std::uint8_t code, KeyColour colour) {
        own_keyboard().cap(key).show_function(code, colour);
      }} {
  frame_.captions.add(*this, Key::FRM_ADVANCED_SETTING_TITLE_MSG, "Advanced Setting");
  for (QWidget* page : {chain_page(), keyboard_page(), pop_page()}) {
    Tab_AdvancedOption->addTab(
        page, QString::fromLatin1(tab_captions.at(static_cast<std::size_t>(Tab_AdvancedOption->count())).built_in));
  }
  frame_.body->addWidget(Tab_AdvancedOption, 1);

  // Behind the tabs, where the eye goes on.
  frame_.tab_through({C_RestoreDefaultPop.back()});
  wire();
}

QCheckBox* FrmAdvancedSetting::make_box(const OptionBox& row, const QString& name, QWidget* parent) {
  auto* box = new QCheckBox{parent};
  box->setObjectName(name);
  if (row.key) {
    frame_.captions.add(*box, *row.key, row.caption);
  } else {
    Captions::fix(*box, row.caption);
  }
  return box;
}

QWidget* FrmAdvancedSetting::chain_page() {
  auto* page = new QWidget{this};
  auto* down = new QVBoxLayout{page};
  down->setSpacing(0);
  Tab_Chain = new QTabBar{page};
  Tab_Chain->setObjectName(QStringLiteral("Tab_Chain"));
  Tab_Chain->setAccessibleName(QStringLiteral("Chain"));
  Tab_Chain->setDrawBase(false);
  for (int chain = 1; chain <= chain_count; ++chain) Tab_Chain->addTab(QStringLiteral("CHAIN FUNC %1").arg(chain));
  down->addWidget(Tab_Chain, 0, Qt::AlignLeft);

  auto* common = new CommonPage{page};
  auto* grid = new QGridLayout{common};
  grid->setContentsMargins(20, 20, 20, 20);
  grid->setHorizontalSpacing(40);
  grid->setVerticalSpacing(14);
  int place = 0;
  for (const OptionBox& row : chain_boxes()) {
    auto* box = make_box(row, screen_text(row.control), common);
    grid->addWidget(box, place % chain_rows, place / chain_rows);
    chain_.push_back(box);
    ++place;
  }
  grid->setRowStretch(chain_rows, 1);
  grid->setColumnStretch(grid->columnCount(), 1);
  down->addWidget(common, 1);
  return page;
}

QWidget* FrmAdvancedSetting::keyboard_page() {
  auto* page = new QWidget{this};
  auto* down = new QVBoxLayout{page};
  auto* along = new QHBoxLayout;
  along->setSpacing(12);
  Cmb_KeyList = new FunctionList{QStringLiteral("Cmb_KeyList"), page};
  QLabel* list_label = make_label(QStringLiteral("L_KeyList"), page, Cmb_KeyList);
  frame_.captions.add(*list_label, Key::FRM_ADVANCED_SETTING_L_KEY_LIST, "Key list");
  L_Preview = new FunctionTag{QStringLiteral("L_Preview"), page};
  C_RestoreDefault = new CommandButton{QStringLiteral("C_RestoreDefault"), page};
  frame_.captions.add(*C_RestoreDefault, Key::FRM_ADVANCED_SETTING_C_RESTORE_DEFAULT_MSG, "Restore Default");
  C_nuovi_default = new CommandButton{QStringLiteral("C_nuovi_default"), page};
  Captions::fix(*C_nuovi_default, "Salva Default");
  C_nuovi_default->hide();
  along->addWidget(list_label);
  along->addWidget(Cmb_KeyList);
  along->addWidget(L_Preview);
  along->addStretch(1);
  along->addWidget(C_nuovi_default);
  along->addWidget(C_RestoreDefault);
  down->addLayout(along);

  QLabel* help = make_label(QStringLiteral("L_KeyAssignHelp"), page);
  make_hint(*help);
  help->setWordWrap(true);
  frame_.captions.add(*help, Key::FRM_ADVANCED_SETTING_L_KEY_ASSIGN_HELP,
                      "Choose a function in the list, then click the key that is to hold it, or drag it there.");
  down->addWidget(help);

  Tab_Keyboard = make_tabs("Tab_Keyboard", "Keyboard", page);
  for (const Model& model : model_rows) {
    const KeyboardTab& tab = keyboard_tabs.at(model.number);
    auto* keyboard = new KeyboardPicture{keyboard_form(model.number), tab.picture, Tab_Keyboard};
    Tab_Keyboard->addTab(keyboard, QString::fromLatin1(tab.caption));
    keyboards_.at(model.number) = keyboard;
  }
  down->addWidget(Tab_Keyboard, 1);
  return page;
}

QWidget* FrmAdvancedSetting::pop_page() {
  auto* page = new QWidget{this};
  auto* down = new QVBoxLayout{page};
  SSTab1 = make_tabs("SSTab1", "Pop-up list", page);
  for (int list = 0; list < pop_list_count; ++list) {
    SSTab1->addTab(pop_list(list), QStringLiteral("POP LIST %1").arg(list + 1));
  }
  down->addWidget(SSTab1);
  return page;
}

QWidget* FrmAdvancedSetting::pop_list(int list) {
  auto* page = new QWidget{SSTab1};
  auto* down = new QVBoxLayout{page};
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(18);
  grid->setVerticalSpacing(4);
  const auto number = static_cast<std::size_t>(list);
  int place = 0;
  for (const OptionBox& row : pop_boxes()) {
    auto* box = make_box(row, member_name(std::string{row.control}.c_str(), list), page);
    grid->addWidget(box, place % pop_rows, place / pop_rows);
    grid->setColumnStretch(place / pop_rows, 1);
    pop_.at(number).push_back(box);
    ++place;
  }
  down->addLayout(grid);
  down->addStretch(1);
  auto* restore = new CommandButton{member_name("C_RestoreDefaultPop", list), page};
  frame_.captions.add(*restore, Key::FRM_ADVANCED_SETTING_C_RESTORE_DEFAULT_MSG, "Restore Default");
  restore->on_click([this, list] { restore_default_pop(list); });
  down->addWidget(restore, 0, Qt::AlignRight);
  C_RestoreDefaultPop.at(number) = restore;
  return page;
}

void FrmAdvancedSetting::wire() {
  connect(Tab_AdvancedOption, &QTabWidget::currentChanged, this, [this] { show_own_keyboard(); });
  connect(Tab_Keyboard, &QTabWidget::currentChanged, this, [this] { show_own_keyboard(); });
  connect(Tab_Chain, &QTabBar::currentChanged, this, [this](int tab) { go_to_chain(tab); });
  // A click on the tab in front shows its chain anew, as one on another tab does.
  connect(Tab_Chain, &QTabBar::tabBarClicked, this, [this](int tab) {
    if (tab == Tab_Chain->currentIndex()) go_to_chain(tab);
  });
  Cmb_KeyList->on_click([this] {
    L_Preview->show_line(Cmb_KeyList->text());
    own_keyboard().mark(chosen_function());
  });
  for (KeyboardPicture* keyboard : keyboards_) {
    keyboard->on_press([this](std::uint8_t key) { assign(key, chosen_function()); });
    keyboard->on_drop([this](std::uint8_t key, std::uint8_t code) { assign(key, code); });
  }
  C_RestoreDefault->on_click([this] { restore_default(); });
  C_nuovi_default->on_click([] { Write_Key_Default(); });
  frame_.on_save([this] { save(); });
}

void FrmAdvancedSetting::load() {
  frame_.load([this] {
    current_chain_ = 0;
    carica_chain(0);
    assegna_Code_key();
    carica_messaggi();
    Cmb_KeyList->fill_functions();
    layout_.lay(PrgMode.KeyLayout);
    for (const Boxes& boxes : pop_) boxes.front()->setEnabled(false);
    C_nuovi_default->setVisible(Global::DebugMode);
    show_own_keyboard();
  });
}

void FrmAdvancedSetting::carica_messaggi() {
  frame_.top.L_Titolo->setText(windowTitle());
  for (std::size_t tab = 0; tab < tab_captions.size(); ++tab) {
    Tab_AdvancedOption->setTabText(static_cast<int>(tab),
                                   caption_text(tab_captions.at(tab).key, tab_captions.at(tab).built_in));
  }
}

void FrmAdvancedSetting::carica_chain(std::uint8_t chain) {
  guarded("FrmAdvancedSetting carica_chain ", [&] {
    if (chain >= chain_count) throw FaultError{FaultCode::out_of_range};
    for (std::size_t i = 0; i < chain_.size(); ++i) {
      chain_[i]->setChecked(is_ticked(PrgMode.AdvSet2.at(chain), chain_boxes()[i]));
    }
    for (std::size_t list = 0; list < pop_.size(); ++list) {
      for (std::size_t i = 0; i < pop_.at(list).size(); ++i) {
        pop_.at(list)[i]->setChecked(is_ticked(PrgMode.AdvSet8.at(list), pop_boxes()[i]));
      }
    }
  });
}

void FrmAdvancedSetting::go_to_chain(int tab) {
  current_chain_ = static_cast<std::uint8_t>(tab);
  carica_chain(current_chain_);
}

void FrmAdvancedSetting::show_own_keyboard() {
  Tab_Keyboard->setCurrentIndex(chosen_model().number);
}

KeyboardPicture& FrmAdvancedSetting::own_keyboard() const {
  return *keyboards_.at(chosen_model().number);
}

void FrmAdvancedSetting::assign(std::uint8_t key, std::uint8_t code) {
  layout_.assign(key, code);
  own_keyboard().mark(chosen_function());
}

void FrmAdvancedSetting::restore_default() {
  Read_Key_Default();
  layout_.lay(KeyDefault);
  own_keyboard().mark(chosen_function());
}

void FrmAdvancedSetting::restore_default_pop(int list) {
  const Boxes& boxes = pop_.at(static_cast<std::size_t>(list));
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    boxes[i]->setChecked(is_default_tick(list, pop_boxes()[i], Global::EcrModel));
  }
}

void FrmAdvancedSetting::save() {
  for (std::size_t i = 0; i < chain_.size(); ++i) {
    store_tick(PrgMode.AdvSet2.at(current_chain_), chain_boxes()[i], chain_[i]->isChecked());
  }
  for (std::size_t list = 0; list < pop_.size(); ++list) {
    for (std::size_t i = 0; i < pop_.at(list).size(); ++i) {
      store_tick(PrgMode.AdvSet8.at(list), pop_boxes()[i], pop_.at(list)[i]->isChecked());
    }
  }
  PrgMode.KeyLayout = layout_.codes();
  frame_.write_file();
}

}  // namespace ecr
