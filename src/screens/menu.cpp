#include "screens/menu.h"

#include <algorithm>
#include <cstring>

#include <QHBoxLayout>

#include "core/global.h"
#include "screens/screen_factory.h"

namespace ecr {
namespace {

bool is_shown(const MenuRow& row) {
  if (row.shown == MenuRow::Shown::debug_only && !Global::DebugMode) return false;
  return is_on_chosen_model(row.models);
}

}  // namespace

MenuScreen::MenuScreen(const QString& name, std::span<const MenuRow> rows, int columns, Key back_key,
                       std::string_view back)
    : Screen{name},
      frame_{*this, ScreenFrame::Corner::picture},
      tiles_{new QGridLayout},
      columns_{columns},
      back_{new CommandButton{QStringLiteral("C_Exit"), this}} {
  tiles_->setHorizontalSpacing(14);
  tiles_->setVerticalSpacing(12);
  for (int column = 0; column < columns; ++column) tiles_->setColumnStretch(column, 1);
  entries_.reserve(rows.size());
  for (const MenuRow& row : rows) {
    auto* button = new CommandButton{QString::fromLatin1(row.control), this};
    button->setProperty("tile", true);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    if (row.key) {
      captions_.add(*button, *row.key, row.built_in);
    } else {
      Captions::fix(*button, row.built_in);
    }
    const QString target = QString::fromLatin1(row.opens);
    if (!target.isEmpty()) button->on_click([this, target] { open(make_screen(target)); });
    entries_.push_back({&row, button});
  }
  frame_.body->addLayout(tiles_);
  frame_.body->addStretch(1);

  captions_.add(*back_, back_key, back);
  back_->on_click([this] { unload(); });
  auto* bar = new QHBoxLayout;
  bar->addWidget(back_);
  bar->addStretch(1);
  frame_.body->addLayout(bar);
}

void MenuScreen::load() {
  frame_.load_band();
  captions_.lay();
  frame_.L_Titolo->setText(windowTitle());
  // A button that is not shown leaves no gap.
  int place = 0;
  for (const Entry& entry : entries_) {
    entry.button->setVisible(is_shown(*entry.row));
    if (!is_shown(*entry.row)) continue;
    tiles_->addWidget(entry.button, place / columns_, place % columns_);
    ++place;
  }
}

QWidget* MenuScreen::first_focus() {
  const auto first = std::find_if(entries_.begin(), entries_.end(),
                                  [](const Entry& entry) { return entry.button->isEnabled() && is_shown(*entry.row); });
  return first == entries_.end() ? back_ : first->button;
}

CommandButton* MenuScreen::button(const char* control) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(), [control](const Entry& entry) {
    return std::strcmp(entry.row->control, control) == 0;
  });
  return found == entries_.end() ? nullptr : found->button;
}

void MenuScreen::set_routine(const char* control, std::function<void()> routine) {
  button(control)->on_click(std::move(routine));
}

}  // namespace ecr
