#include "practice/screens.h"

#include <cstdlib>

#include <QCloseEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include "practice/build.h"
#include "practice/program.h"

namespace ecr::practice {

Window::Window() : pages{new QStackedWidget} {
  setCentralWidget(pages);
  struct Page {
    const char* name;
    void (*build)(QWidget* page, Window* window);
  };
  for (const Page& row : {Page{"FrmPracticeStart", build_start_page}, Page{"FrmPracticeFields", build_fields_page},
                          Page{"FrmPracticeLists", build_lists_page}}) {
    auto* page = named(new QWidget, row.name);
    row.build(page, this);
    pages->addWidget(page);
    if (!start) start = page;
  }
  show_page(start);
}

void Window::show_page(QWidget* page) {
  pages->setCurrentWidget(page);
  setWindowTitle(page == start ? QStringLiteral("Practice \xE9") : QStringLiteral("Practice   page"));
}

void Window::closeEvent(QCloseEvent* event) {
  if (pages->currentWidget() != start) {
    show_page(start);
    event->ignore();
    return;
  }
  if (manners.refuse_to_close) event->ignore();
  if (manners.crash_on_close) std::abort();
}

OtherWindow::OtherWindow(Window* window) : window_{window} {
  named(this, "FrmPracticeOther");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("Other"));
  auto* column = new QVBoxLayout{this};
  // The same name as on a page of the first window.
  auto* field = named(new QLineEdit{QStringLiteral("the other's name"), this}, "E_Name");
  column->addWidget(field);
  column->addWidget(button(this, "C_Back", "Back", [this] { close(); }));
}

void OtherWindow::closeEvent(QCloseEvent* event) {
  log(QStringLiteral("Other closed"));
  window_->show();
  event->accept();
}

void run_dialog(QWidget* parent) {
  QDialog dialog{parent};
  named(&dialog, "FrmPracticeDialog");
  dialog.setWindowTitle(QStringLiteral("Dialog"));
  auto* column = new QVBoxLayout{&dialog};
  column->addWidget(label(&dialog, "L_Text", "first"));
  column->addWidget(button(&dialog, "C_Change", "Change", [&dialog] {
    dialog.findChild<QLabel*>(QStringLiteral("L_Text"))->setText(QStringLiteral("second"));
  }));
  column->addWidget(button(&dialog, "C_Leave", "Leave", [&dialog] { dialog.accept(); }));
  dialog.exec();
}

}  // namespace ecr::practice
