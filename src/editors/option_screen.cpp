#include "editors/option_screen.h"

#include <string>

namespace ecr {

OptionScreen::OptionScreen(const OptionScreenTable& table)
    : Screen{QString::fromLatin1(table.name.data(), static_cast<qsizetype>(table.name.size()))},
      frame_{*this, ScreenFrame::Corner::picture},
      lists_{*this, frame_.captions, table.rows} {
  frame_.captions.add(*this, table.title, table.title_caption);
  frame_.captions.add(*frame_.top.L_Titolo, table.heading, table.heading_caption);
  frame_.body->addLayout(lists_.block());
  frame_.body->addStretch(1);
  frame_.tab_through({lists_.lists().begin(), lists_.lists().end()});
  frame_.log_prefixes(std::string{table.load_prefix}, std::string{table.save_prefix});
  frame_.saves_to(table.saves_to);
  frame_.on_save([this] {
    lists_.save();
    frame_.write_file();
  });
}

void OptionScreen::load() {
  frame_.load([this] { lists_.load(); });
}

}  // namespace ecr
