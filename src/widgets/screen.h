#pragma once
// Screens and the stage on which they stand.
//
// The stage is the program's one window. Screens lie on it as a stack: opening one hides the one below, closing it
// shows that one again. The window's close box closes the screen on top.

#include <vector>

#include <QStackedLayout>
#include <QString>
#include <QWidget>

namespace ecr {

class Stage;

class Screen : public QWidget {
  Q_OBJECT

 public:
  /// `name` is the screen's name as the system has it; it becomes the object name. A screen lies on the stage from its
  /// beginning, hidden: a screen that changes its parent once it has controls dresses each of them anew.
  explicit Screen(const QString& name);

  /// The screen that a control lies on, nullptr outside of all.
  [[nodiscard]] static const Screen* of(const QWidget* widget);

  /// Closes the screen and shows the one below.
  virtual void unload();
  /// Whether the screen is on its way out; its fields are not left any more then.
  [[nodiscard]] bool is_unloading() const { return unloading_; }

  /// Opens another screen over this one.
  void open(Screen* screen);

  /// What happens when the screen comes up for the first time, before it is seen.
  virtual void load() = 0;
  /// What happens each time the screen below a closed one is seen again.
  virtual void seen_again() {}
  /// The control that has the focus when the screen opens: one whose text that does not change.
  [[nodiscard]] virtual QWidget* first_focus() = 0;
  /// The screen's page of the manual.
  [[nodiscard]] virtual QString help_page() const;

 protected:
  [[nodiscard]] Stage* stage() const { return stage_; }

 private:
  friend class Stage;
  Stage* stage_ = nullptr;
  bool unloading_ = false;
};

class Stage : public QWidget {
  Q_OBJECT

 public:
  Stage();
  ~Stage() override;

  /// The stage of the program, nullptr where there is none.
  [[nodiscard]] static Stage* current();

  /// Loads the screen, puts it on top and shows it. The stage owns it.
  void open(Screen* screen);
  /// Takes the top screen away.
  void close_top();

  [[nodiscard]] Screen* top() const { return screens_.empty() ? nullptr : screens_.back(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void show_top();

  QStackedLayout* layout_;
  std::vector<Screen*> screens_;
};

}  // namespace ecr
