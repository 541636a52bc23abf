#include "screens/frm_language.h"

#include <utility>

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "lang/language.h"

namespace ecr {
namespace {

constexpr std::array<Key, 8> option_keys = {
    Key::FRM_LANGUAGE_OPT_LANG1, Key::FRM_LANGUAGE_OPT_LANG2, Key::FRM_LANGUAGE_OPT_LANG3, Key::FRM_LANGUAGE_OPT_LANG4,
    Key::FRM_LANGUAGE_OPT_LANG5, Key::FRM_LANGUAGE_OPT_LANG6, Key::FRM_LANGUAGE_OPT_LANG7, Key::FRM_LANGUAGE_OPT_LANG8};

QString utf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

FrmLanguage::FrmLanguage(QWidget* over, std::function<void()> changed)
    : QDialog{over},
      Frame1{new QGroupBox{this}},
      C_Save{new CommandButton{QStringLiteral("C_Save"), this}},
      C_Annulla{new CommandButton{QStringLiteral("C_Annulla"), this}},
      changed_{std::move(changed)},
      chosen_{LanguageNumber} {
  setObjectName(QStringLiteral("FrmLanguage"));
  setAttribute(Qt::WA_DeleteOnClose);
  Frame1->setObjectName(QStringLiteral("Frame1"));
  Frame1->setFlat(true);
  captions_.add(*this, Key::FRM_LANGUAGE_TITLE, "Language Selection");
  captions_.add(*C_Save, Key::FRM_LANGUAGE_C_SAVE, "Save");
  captions_.add(*C_Annulla, Key::FRM_LANGUAGE_C_ANNULLA, "Back");

  auto* grid = new QGridLayout{Frame1};
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(10);
  for (int i = 0; i < 8; ++i) {
    const auto place = static_cast<std::size_t>(i);
    const auto number = static_cast<std::uint8_t>(i);
    auto* option = new QRadioButton{Frame1};
    option->setObjectName(member_name("Opt_Lang", i));
    captions_.add(*option, option_keys[place], "");
    option->setText(utf8(languages[place].name));
    connect(option, &QRadioButton::clicked, this, [this, number] { choose(number); });
    auto* flag = new Picture{member_name("I_Lang", i), Frame1};
    flag->show_file(utf8(languages[place].flag), {48, 32});
    flag->on_click([this, number] { choose(number); });
    // Two columns of four, read downwards.
    grid->addWidget(flag, i % 4, i / 4 * 2);
    grid->addWidget(option, i % 4, i / 4 * 2 + 1);
    Opt_Lang[place] = option;
    I_Lang[place] = flag;
  }
  C_Save->emphasise();
  C_Save->on_click([this] { save(); });
  C_Annulla->on_click([this] { close(); });

  auto* whole = new QVBoxLayout{this};
  whole->setContentsMargins(24, 20, 24, 20);
  whole->addWidget(Frame1);
  auto* bar = new QHBoxLayout;
  bar->addWidget(C_Annulla);
  bar->addStretch(1);
  bar->addWidget(C_Save);
  whole->addLayout(bar);

  captions_.lay();
  choose(chosen_);
  Opt_Lang[chosen_ < Opt_Lang.size() ? chosen_ : 0]->setFocus();
}

void FrmLanguage::choose(std::uint8_t number) {
  chosen_ = number;
  if (number < Opt_Lang.size()) Opt_Lang[number]->setChecked(true);
}

void FrmLanguage::save() {
  selezione_lingua(chosen_);
  carica_messaggi_default();
  changed_();
  Write_Language();
  close();
}

}  // namespace ecr
