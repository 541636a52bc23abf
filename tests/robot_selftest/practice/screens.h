#pragma once
// The practice program's screens: three pages of one window, a window of its own, and one that is shown modally.

#include <QDialog>
#include <QMainWindow>
#include <QStackedWidget>

namespace ecr::practice {

/// How the program behaves at its end, as its boxes on the first page say.
struct Manners {
  bool crash_on_close = false;
  bool refuse_to_close = false;
};

/// The window with the pages.
class Window : public QMainWindow {
 public:
  Window();

  void show_page(QWidget* page);

  Manners manners;
  QStackedWidget* pages = nullptr;
  QWidget* start = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;
};

/// The page that a second window shows while the first is hidden.
class OtherWindow : public QWidget {
 public:
  explicit OtherWindow(Window* window);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  Window* window_;
};

// Each fills one page and is called once.
void build_start_page(QWidget* page, Window* window);
void build_fields_page(QWidget* page, Window* window);
void build_lists_page(QWidget* page, Window* window);

/// Shows a screen until it is closed.
void run_dialog(QWidget* parent);

}  // namespace ecr::practice
