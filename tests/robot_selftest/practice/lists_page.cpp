// The third page: lists, grids, tabs.

#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>

#include "practice/build.h"
#include "practice/program.h"
#include "practice/screens.h"

namespace ecr::practice {
namespace {

QComboBox* list(QWidget* page, const char* name, const QStringList& entries) {
  auto* made = named(new QComboBox{page}, name);
  made->addItems(entries);
  return made;
}

void lists(QWidget* page, QGridLayout* grid) {
  QComboBox* choice = list(
      page, "Cmb_Choice",
      {QStringLiteral("0. NO LIMIT"), QStringLiteral("1. NORMAL"), QStringLiteral("2. HIGH"), QStringLiteral("#1")});
  QObject::connect(choice, &QComboBox::activated, page,
                   [choice] { log(QStringLiteral("picked ") + choice->currentText()); });
  grid->addWidget(choice, 0, 0);
  QComboBox* foreign = list(page, "Cmb_Foreign", {QStringLiteral("0. A")});
  foreign->setCurrentIndex(-1);
  foreign->setPlaceholderText(QStringLiteral("12"));
  grid->addWidget(foreign, 0, 1);
  QComboBox* typed = list(page, "Cmb_Number", {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
  typed->setEditable(true);
  grid->addWidget(typed, 0, 2);
  grid->addWidget(list(page, "Cmb_Empty", {}), 0, 3);
  QStringList many;
  for (int i = 1; i <= 300; ++i) many.append(QString::number(i));
  grid->addWidget(list(page, "Cmb_Many", many), 0, 4);
  auto* view = named(new QListWidget{page}, "Lst_View");
  for (int i = 0; i < 50; ++i) view->addItem(QStringLiteral("entry %1").arg(i));
  view->item(2)->setFlags(Qt::NoItemFlags);
  grid->addWidget(view, 1, 0);
}

void grids(QWidget* page, QGridLayout* grid) {
  auto* view = named(new QTableView{page}, "Fg_Grid");
  auto* model = new QStandardItemModel{99, 3, view};
  model->setHorizontalHeaderLabels({QStringLiteral("No."), QStringLiteral("Name"), QStringLiteral("Rate")});
  for (int row = 0; row < model->rowCount(); ++row) {
    model->setItem(row, 0, new QStandardItem{QString::number(row + 1)});
    model->setItem(row, 1, new QStandardItem{QStringLiteral("name %1").arg(row + 1)});
  }
  view->setModel(model);
  view->verticalHeader()->hide();
  view->setSelectionBehavior(QAbstractItemView::SelectRows);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  QLabel* row = label(page, "L_Row", "none");
  QObject::connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, row,
                   [row](const QModelIndex& index) { row->setText(QString::number(index.row() + 1)); });
  QObject::connect(view, &QTableView::doubleClicked, row,
                   [row](const QModelIndex& index) { row->setText(QStringLiteral("opened %1").arg(index.row() + 1)); });
  QObject::connect(view->horizontalHeader(), &QHeaderView::sectionPressed, row,
                   [row] { row->setText(QStringLiteral("heading")); });
  grid->addWidget(view, 1, 1, 1, 2);
  grid->addWidget(row, 2, 1);
}

void tabs(QWidget* page, QGridLayout* grid) {
  auto* tabs = named(new QTabWidget{page}, "Tab_Few");
  for (const char* caption : {"&One", "Two && three", "Four"}) tabs->addTab(new QWidget, QString::fromUtf8(caption));
  named(new QLineEdit{QStringLiteral("on one"), tabs->widget(0)}, "E_OnOne");
  named(new QLineEdit{QStringLiteral("on two"), tabs->widget(1)}, "E_OnTwo");
  named(new QLineEdit{QStringLiteral("hidden on two"), tabs->widget(1)}, "E_HiddenOnTwo")->hide();
  tabs->setTabEnabled(2, false);
  grid->addWidget(tabs, 1, 3);
  auto* many = named(new QTabWidget{page}, "Tab_Many");
  many->setMaximumWidth(200);
  for (int i = 0; i < 20; ++i) many->addTab(new QWidget, QStringLiteral("tab %1").arg(i));
  grid->addWidget(many, 1, 4);
}

}  // namespace

void build_lists_page(QWidget* page, Window* window) {
  auto* grid = new QGridLayout{page};
  lists(page, grid);
  grids(page, grid);
  tabs(page, grid);
  grid->addWidget(button(page, "C_Back", "Back", [=] { window->show_page(window->start); }), 3, 0);
}

}  // namespace ecr::practice
