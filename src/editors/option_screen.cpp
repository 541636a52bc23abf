#include "editors/option_screen.h"

#include <string>

#include "image/prg_mode.h"

namespace ecr {

OptionScreen::OptionScreen(const OptionScreenTable& table)
    : Screen{QString::fromLatin1(table.name.data(), static_cast<qsizetype>(table.name.size()))},
      frame_{*this, ScreenFrame::Corner::picture},
      lists_{*this, frame_.captions, table.rows},
      writes_{table.writes} {
  frame_.captions.add(*this, table.title, table.title_caption);
  frame_.captions.add(*frame_.top.L_Titolo, table.heading, table.heading_caption);
  frame_.body->addLayout(lists_.block());
  frame_.body->addStretch(1);
  QWidget* before = nullptr;
  for (ChoiceList* list : lists_.lists()) {
    if (before != nullptr) setTabOrder(before, list);
    before = list;
  }
  for (QWidget* next : {static_cast<QWidget*>(frame_.C_Salva), static_cast<QWidget*>(frame_.C_Invia_Ecr),
                        static_cast<QWidget*>(frame_.C_Annulla), static_cast<QWidget*>(frame_.top.I_Help)}) {
    setTabOrder(before, next);
    before = next;
  }
  frame_.log_prefixes(std::string{table.load_prefix}, std::string{table.save_prefix});
  frame_.on_save([this] {
    lists_.save();
    if (writes_ == SaveWrites::the_image_file) Write_PrgMode();
  });
}

void OptionScreen::load() {
  frame_.load([this] { lists_.load(); });
  // It would name a file that this Save leaves alone.
  if (writes_ == SaveWrites::nothing) frame_.C_Salva->setToolTip({});
}

}  // namespace ecr
