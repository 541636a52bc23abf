// The second page: fields, captions, and controls that cannot be used.

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTextEdit>

#include "practice/build.h"
#include "practice/controls.h"
#include "practice/screens.h"

namespace ecr::practice {
namespace {

void captions(QWidget* page, QGridLayout* grid) {
  grid->addWidget(label(page, "L_Raw", "This & that"), 0, 0);
  QLabel* buddy = label(page, "L_Buddy", "&Name && more:");
  auto* name = named(new QLineEdit{QStringLiteral("Anna"), page}, "E_Name");
  name->setMaxLength(10);
  buddy->setBuddy(name);
  grid->addWidget(buddy, 0, 1);
  grid->addWidget(name, 0, 2);
  grid->addWidget(label(page, "L_Rich", "<b>Bold</b> text"), 0, 3);
  grid->addWidget(label(page, "L_Lines", "one\ntwo"), 0, 4);
  struct Shade {
    const char* name;
    QColor colour;
  };
  int column = 5;
  for (const Shade& shade : {Shade{"L_Red", {230, 60, 50}}, Shade{"L_Green", {30, 150, 60}}}) {
    QLabel* coloured = label(page, shade.name, "colour");
    QPalette palette = coloured->palette();
    palette.setColor(QPalette::WindowText, shade.colour);
    coloured->setPalette(palette);
    grid->addWidget(coloured, 0, column++);
  }
  auto* styled = named(new QLineEdit{QStringLiteral("7"), page}, "E_Styled");
  styled->setStyleSheet(QStringLiteral("color: #ff8080; background: #202020"));
  grid->addWidget(styled, 0, column);
}

void fields(QWidget* page, QGridLayout* grid) {
  QLabel* keys = label(page, "L_Keys", "");
  grid->addWidget(keys, 1, 0, 1, 6);
  grid->addWidget(named(new KeyField{keys, page}, "E_Keys"), 2, 0);
  auto* selecting = named(new FocusField{QStringLiteral("old"), page}, "E_Selecting");
  selecting->entered = [selecting] { selecting->selectAll(); };
  grid->addWidget(selecting, 2, 1);
  auto* rate = named(new FocusField{QStringLiteral("5 %"), page}, "E_Rate");
  rate->entered = [rate] { rate->setText(rate->text().chopped(2)); };
  rate->left = [rate] { rate->setText(rate->text() + QStringLiteral(" %")); };
  grid->addWidget(rate, 2, 2);
  auto* limited = named(new QLineEdit{page}, "E_Limited");
  QObject::connect(limited, &QLineEdit::textChanged, page, [=](const QString& text) {
    if (text.toInt() <= 999) return;
    QMessageBox::critical(page->window(), QStringLiteral("Limit"), QStringLiteral("Too high"));
    limited->setText(text.chopped(1));
  });
  grid->addWidget(limited, 2, 3);
  auto* changes = label(page, "L_Changes", "0");
  auto* counted = named(new QLineEdit{QStringLiteral("abc"), page}, "E_Counted");
  QObject::connect(counted, &QLineEdit::textChanged, page,
                   [=] { changes->setText(QString::number(changes->text().toInt() + 1)); });
  grid->addWidget(counted, 2, 4);
  grid->addWidget(changes, 2, 5);
  auto* read_only = named(new QLineEdit{QStringLiteral("fixed"), page}, "E_ReadOnly");
  read_only->setReadOnly(true);
  grid->addWidget(read_only, 2, 6);
  grid->addWidget(named(new QPlainTextEdit{QStringLiteral("first\nsecond"), page}, "E_Memo"), 3, 0);
  grid->addWidget(named(new QTextEdit{QStringLiteral("rich"), page}, "E_Rich"), 3, 1);
}

void check_boxes(QWidget* page, QGridLayout* grid) {
  // Far wider than box and caption are.
  auto* option = named(new QCheckBox{QStringLiteral("&Option"), page}, "Chk_Option");
  grid->addWidget(option, 4, 0, 1, 3);
  grid->addWidget(named(new QRadioButton{QStringLiteral("&First"), page}, "Opt_Kind(0)"), 4, 3);
  grid->addWidget(named(new QRadioButton{QStringLiteral("Second"), page}, "Opt_Kind(1)"), 4, 4);
  auto* frame = named(new QGroupBox{QStringLiteral("&Frame"), page}, "F_Frame");
  frame->setCheckable(true);
  auto* inside = new QGridLayout{frame};
  inside->addWidget(named(new QLineEdit{page}, "E_Inside"));
  grid->addWidget(frame, 5, 0);
}

void unusable(QWidget* page, QGridLayout* grid) {
  QLabel* clicks = label(page, "L_Clicks", "0");
  const auto count = [=] { clicks->setText(QString::number(clicks->text().toInt() + 1)); };
  grid->addWidget(clicks, 6, 0);
  grid->addWidget(button(page, "C_Count", "&Count && see", count), 6, 1);
  auto* cap = named(new ClickLabel{QStringLiteral("7"), page}, "L_key(1)");
  cap->clicked = count;
  cap->double_clicked = [=] { clicks->setText(QStringLiteral("double")); };
  grid->addWidget(cap, 6, 2);
  QPushButton* disabled = button(page, "C_Disabled", "Disabled", count);
  disabled->setEnabled(false);
  grid->addWidget(disabled, 6, 3);
  QPushButton* hidden = button(page, "C_Hidden", "Hidden", count);
  hidden->hide();
  grid->addWidget(hidden, 6, 4);
  QPushButton* covered = button(page, "C_Covered", "Covered", count);
  grid->addWidget(covered, 6, 5);
  grid->addWidget(named(new QWidget{page}, "W_Cover"), 6, 5);
  auto* disabled_frame = named(new QGroupBox{QStringLiteral("Off"), page}, "F_Off");
  disabled_frame->setEnabled(false);
  auto* inside = new QGridLayout{disabled_frame};
  inside->addWidget(named(new QLineEdit{disabled_frame}, "E_Off"));
  grid->addWidget(disabled_frame, 5, 1);
}

}  // namespace

void build_fields_page(QWidget* page, Window* window) {
  auto* grid = new QGridLayout{page};
  captions(page, grid);
  fields(page, grid);
  check_boxes(page, grid);
  unusable(page, grid);
  grid->addWidget(button(page, "C_Back", "Back", [=] { window->show_page(window->start); }), 7, 0);
}

}  // namespace ecr::practice
