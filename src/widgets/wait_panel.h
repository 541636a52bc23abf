#pragma once
// What the person sees of a modal wait: the screen greyed, and a card that names what is going on. It comes up only
// when the wait has lasted a moment; input is swallowed from the wait's first moment on.

#include <functional>

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace ecr {

class CommandButton;

/// While such an object lives, the waits inside of it are steps of one piece of work: their panels tell how far it is,
/// and stay away or on show together. One at a time.
class WaitSteps {
 public:
  explicit WaitSteps(int steps);
  WaitSteps(const WaitSteps&) = delete;
  WaitSteps& operator=(const WaitSteps&) = delete;
  ~WaitSteps();

  /// The next step begins. `what` names it in place of what its wait says; empty leaves that.
  void next(const QString& what);

 private:
  friend class WaitPanel;
  int steps_;
  int begun_ = 0;
  QString what_;
  QElapsedTimer elapsed_;
};

class WaitPanel : public QWidget {
  Q_OBJECT

 public:
  /// Covers `window`. `seconds` is how long the wait will be, 0 where nobody knows.
  WaitPanel(QWidget& window, const QString& what, double seconds);
  ~WaitPanel() override;

  static constexpr int shown_after_ms = 250;

  /// Names what is going on now, the step `nth` of `of`, the first being 1.
  void show_step(const QString& what, int nth, int of);

  /// Puts a button on the card, which Escape presses too, once. Whoever waits here ends the wait by it as soon as that
  /// can be; the window's close box works as well then.
  void let_give_up(const QString& words, std::function<void()> given_up);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void give_up();
  [[nodiscard]] bool is_let_in(const QObject* watched, const QEvent& event) const;
  void show_progress();

  QLabel* what_;
  QLabel* rest_;
  QProgressBar* bar_;
  CommandButton* give_up_ = nullptr;
  std::function<void()> given_up_;
  double seconds_;
  QElapsedTimer elapsed_;
  QTimer tick_;
};

}  // namespace ecr
