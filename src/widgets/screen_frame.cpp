#include "widgets/screen_frame.h"

#include <QHBoxLayout>
#include <QShortcut>

#include "widgets/help.h"
#include "widgets/look.h"

namespace ecr {

ScreenFrame::ScreenFrame(Screen& screen, Corner corner)
    : body{new QVBoxLayout},
      L_Titolo{make_label(QStringLiteral("L_Titolo"), &screen)},
      I_Help{new Picture{QStringLiteral("I_Help"), &screen}},
      L_Session{new SessionMark{&screen}} {
  auto* whole = new QVBoxLayout{&screen};
  whole->setContentsMargins(28, 18, 28, 20);
  whole->setSpacing(16);
  auto* top = new QHBoxLayout;
  top->setSpacing(16);
  whole->addLayout(top);
  whole->addLayout(body, 1);
  body->setSpacing(12);

  make_heading(*L_Titolo);
  top->addWidget(L_Titolo, 1);
  top->addWidget(L_Session);
  if (corner == Corner::picture) {
    corner_ = new Picture{QStringLiteral("I_Corner"), &screen};
    top->addWidget(corner_);
  }
  I_Help->setToolTip(QStringLiteral("Click here for open the guide"));
  I_Help->setAccessibleName(QStringLiteral("Help"));
  I_Help->setFocusPolicy(Qt::TabFocus);
  top->addWidget(I_Help, 0, Qt::AlignTop);

  const auto help = [&screen] { open_help(&screen, screen.help_page()); };
  I_Help->on_click(help);
  auto* key = new QShortcut{QKeySequence{Qt::Key_F1}, &screen};
  QObject::connect(key, &QShortcut::activated, &screen, help);
}

void ScreenFrame::load_band(const QString& file) {
  L_Session->show_session(file);
  I_Help->show_file(QStringLiteral("help.png"), {24, 24});
  if (corner_ != nullptr) corner_->show_file(QStringLiteral("Logo_Angolo.gif"), {80, 50});
}

}  // namespace ecr
