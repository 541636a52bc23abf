#include "captions/receipt_page.h"

#include <utility>

#include <QGridLayout>
#include <QTabBar>

#include "captions/parent_of_pages.h"
#include "core/model.h"
#include "widgets/controls.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int line_width = 24;
constexpr int widest_label = 220;

/// The header is printed anew only while one of the tabs up to this one is in front.
constexpr int last_tab_of_the_header = 2;

}  // namespace

ReceiptPage::ReceiptPage(Captions& captions, std::function<void()> changed, QWidget* parent)
    : QWidget{parent},
      changed_{std::move(changed)},
      Tab_Invoice{new QTabWidget{this}},
      Chk_Double{new QCheckBox{this}},
      strip_{new ReceiptStrip{this}} {
  Tab_Invoice->setObjectName(QStringLiteral("Tab_Invoice"));
  // A press on a tab takes the focus, so that a line that is being written is left.
  Tab_Invoice->tabBar()->setFocusPolicy(Qt::StrongFocus);
  Chk_Double->setObjectName(QStringLiteral("Chk_Double"));
  captions.add(*Chk_Double, Key::FRM_CAPTION_CHK_DOUBLE, "Double width");
  add_double_key(*Chk_Double, *this);
  for (std::size_t group = 0; group < line_groups.size(); ++group) {
    Tab_Invoice->addTab(make_group(static_cast<LineGroup>(group)), {});
  }
  connect(Tab_Invoice, &QTabWidget::currentChanged, this, &ReceiptPage::show_group);

  auto* preview = make_label(QStringLiteral("L_Preview"), this);
  captions.add(*preview, Key::FRM_CAPTION_PREVIEW, "Preview");
  auto* grid = new QGridLayout{this};
  grid->setHorizontalSpacing(24);
  grid->setVerticalSpacing(6);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(1, 1);
  grid->addWidget(Chk_Double, 0, 0);
  grid->addWidget(preview, 0, 1);
  grid->addWidget(Tab_Invoice, 1, 0);
  grid->addWidget(strip_, 1, 1);

  QWidget::setTabOrder(Chk_Double, Tab_Invoice);
}

QWidget* ReceiptPage::make_group(LineGroup group) {
  const LineGroupRow& about = row_of(group);
  auto* scroll = new QScrollArea{parent_of_pages(*Tab_Invoice)};
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* page = new QWidget{scroll->viewport()};
  auto* grid = new QGridLayout{page};
  grid->setVerticalSpacing(6);
  grid->setHorizontalSpacing(12);
  grid->setColumnStretch(1, 1);
  for (int i = 0; i < about.lines; ++i) {
    auto* line = new CaptionLine{member_name(about.field, i), line_width, page};
    line->setFont(register_face());
    if (about.key_prefix != nullptr) {
      line->print_double_while([this] { return Chk_Double->isChecked(); }, about.key_prefix);
    }
    line->on_change([this, group] {
      if (group == LineGroup::header && Tab_Invoice->currentIndex() > last_tab_of_the_header) return;
      changed_();
    });
    line->on_line_entered([this, group, i, scroll, line] {
      scroll->ensureWidgetVisible(line, 0, 8);
      strip_->point_out(group, i);
    });
    QLabel* label = make_label(member_name(about.label_name, i), page, line);
    label->setWordWrap(true);
    label->setMinimumWidth(group == LineGroup::other ? 165 : 108);
    // A description of any length leaves its field in sight.
    label->setMaximumSize(widest_label, 3 * label->fontMetrics().lineSpacing() + 6);
    grid->addWidget(label, i, 0);
    grid->addWidget(line, i, 1);
    lines_[index_of(group)].push_back(line);
    labels_[index_of(group)].push_back(label);
  }
  if (group == LineGroup::extra_invoice) {
    QLabel* hint = make_label(QStringLiteral("L_NoZ300"), page);
    make_hint(*hint);
    hint->setWordWrap(true);
    hint->setVisible(!chosen_model().has_extra_invoice);
    grid->addWidget(hint, about.lines, 1);
    L_NoZ300 = hint;
  }
  grid->setRowStretch(about.lines + 1, 1);
  scroll->setWidget(page);
  scroll->setWidgetResizable(true);
  return scroll;
}

void ReceiptPage::carica_messaggi() {
  // A Z300 keeps the invoice lines that it has; the fields can be written all the same.
  set_caption(*L_NoZ300, screen_text(MsgOptionNoZ300));
  Tab_Invoice->setAccessibleName(accessibleName());
  for (std::size_t i = 0; i < line_groups.size(); ++i) {
    const LineGroupRow& about = line_groups[i];
    Tab_Invoice->setTabText(static_cast<int>(i), caption_text(about.tab_key, about.tab));
    const QString text = caption_text(about.label_key, about.label);
    for (int line = 0; line < about.lines; ++line) {
      set_caption(*labels_[i][static_cast<std::size_t>(line)], text + QString::number(line + 1));
    }
  }
}

void ReceiptPage::show_on_paper() {
  for (std::size_t group = 0; group < line_groups.size(); ++group) {
    for (std::size_t line = 0; line < lines_[group].size(); ++line) {
      strip_->row(static_cast<LineGroup>(group), static_cast<int>(line)).show_line(lines_[group][line]->text());
    }
  }
}

void ReceiptPage::show_group(int tab) {
  strip_->bring_to_sight(static_cast<LineGroup>(tab));
}

}  // namespace ecr
