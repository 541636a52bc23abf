#include "captions/message_page.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "captions/paper.h"
#include "captions/scroll_message.h"
#include "core/register_text.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {

MessagePage::MessagePage(Captions& captions, QWidget* parent)
    : QWidget{parent},
      Cmb_WaitTime{new ChoiceList{QStringLiteral("Cmb_WaitTime"), this}},
      Cmb_ScrollSpeed{new ChoiceList{QStringLiteral("Cmb_ScrollSpeed"), this}},
      F_LcdOption{new QGroupBox{this}},
      display_{new LcdPicture{QStringLiteral("I_Display"), this}},
      C_Play{new CommandButton{QStringLiteral("C_Play"), this}} {
  lay_out(captions);
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    Field* field = fields_[i];
    field->on_entered([this, i, field] {
      // Behind the message, not behind the blanks that fill the field.
      field->setCursorPosition(static_cast<int>(trim_end(field->text()).size()));
      show_on_display(i);
    });
    field->on_change([this, i, field] {
      if (i == on_display_) display_->show_message(field->text());
    });
  }
  connect(Cmb_ScrollSpeed, &QComboBox::currentIndexChanged, this, [this] {
    if (display_->plays()) display_->play(scroll_interval_ms(Cmb_ScrollSpeed->number()));
  });
  C_Play->on_click([this] { play(!display_->plays()); });
}

void MessagePage::lay_out(Captions& captions) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  grid->setColumnStretch(1, 1);
  for (std::size_t i = 0; i < message_rows.size(); ++i) {
    const MessageRow& about = message_rows[i];
    auto* field = new Field{QString::fromLatin1(about.field), this};
    field->setFont(register_face());
    QLabel* label = make_label(QString::fromLatin1(about.label), this, field);
    captions.add(*label, about.key, about.built_in);
    const int row = static_cast<int>(i);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    fields_[i] = field;
  }

  F_LcdOption->setObjectName(QStringLiteral("F_LcdOption"));
  captions.add(*F_LcdOption, Key::FRM_CAPTION_F_LCDOPTION_MSG, "LCD option");
  auto* options = new QGridLayout{F_LcdOption};
  options->setHorizontalSpacing(12);
  options->setVerticalSpacing(8);
  options->setColumnStretch(1, 1);
  QLabel* wait = make_label(QStringLiteral("L_WaitTime"), F_LcdOption, Cmb_WaitTime);
  captions.add(*wait, Key::FRM_CAPTION_L_WAIT_TIME_MSG, "Wait time");
  QLabel* speed = make_label(QStringLiteral("L_ScrollSpeed"), F_LcdOption, Cmb_ScrollSpeed);
  captions.add(*speed, Key::FRM_CAPTION_L_SCROLL_SPEED_MSG, "Scroll speed");
  options->addWidget(wait, 0, 0);
  options->addWidget(Cmb_WaitTime, 0, 1);
  options->addWidget(speed, 1, 0);
  options->addWidget(Cmb_ScrollSpeed, 1, 1);

  set_caption(*C_Play, own_words(OwnText::play));
  auto* shown = new QVBoxLayout;
  shown->setSpacing(8);
  shown->addWidget(display_);
  shown->addWidget(C_Play, 0, Qt::AlignLeft);
  shown->addStretch(1);
  auto* below = new QHBoxLayout;
  below->setSpacing(24);
  below->addWidget(F_LcdOption, 1, Qt::AlignTop);
  below->addLayout(shown);

  auto* whole = new QVBoxLayout{this};
  whole->setSpacing(20);
  whole->addLayout(grid);
  whole->addLayout(below);
  whole->addStretch(1);
}

void MessagePage::carica_messaggi() {
  Cmb_WaitTime->fill({choice(0, Key::FRM_CAPTION_WAIT_TIME_0_MSG, "0. NO"),
                      choice(1, Key::FRM_CAPTION_WAIT_TIME_1_MSG, "1. 3 minutes"),
                      choice(2, Key::FRM_CAPTION_WAIT_TIME_2_MSG, "2. 5 minutes"),
                      choice(3, Key::FRM_CAPTION_WAIT_TIME_3_MSG, "3. 10 minutes")});
  Cmb_ScrollSpeed->fill({choice(0, Key::FRM_CAPTION_SCROLL_SPEED_0_MSG, "0. SLOW"),
                         choice(1, Key::FRM_CAPTION_SCROLL_SPEED_1_MSG, "1. MEDIUM"),
                         choice(2, Key::FRM_CAPTION_SCROLL_SPEED_2_MSG, "2. FAST")});
}

void MessagePage::show_messages() {
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    fields_[i]->show_text(field_text(sostituzione_from_ecr((PrgMode.*message_rows[i].text).view())));
  }
}

void MessagePage::show_codes() {
  Cmb_WaitTime->show_number(PrgMode.CaptionOpt0);
  Cmb_ScrollSpeed->show_number(PrgMode.CaptionOpt1);
}

void MessagePage::store() const {
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    (PrgMode.*message_rows[i].text).set(sostituzione_to_ecr(codes_of(fields_[i]->text())));
  }
  PrgMode.CaptionOpt0 = Cmb_WaitTime->number();
  PrgMode.CaptionOpt1 = Cmb_ScrollSpeed->number();
}

void MessagePage::show_on_display(std::size_t message) {
  on_display_ = message;
  display_->show_message(fields_[message]->text());
}

void MessagePage::play(bool on) {
  if (on) {
    display_->play(scroll_interval_ms(Cmb_ScrollSpeed->number()));
  } else {
    display_->stop();
  }
  set_caption(*C_Play, own_words(on ? OwnText::stop : OwnText::play));
}

void MessagePage::hideEvent(QHideEvent* event) {
  play(false);
  QWidget::hideEvent(event);
}

}  // namespace ecr
