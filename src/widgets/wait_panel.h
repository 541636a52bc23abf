#pragma once
// What the person sees of a modal wait: the screen greyed, and a card that names what is going on. It comes up only
// when the wait has lasted a moment; input is swallowed from the wait's first moment on.

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace ecr {

class WaitPanel : public QWidget {
  Q_OBJECT

 public:
  /// Covers `window`. `seconds` is how long the wait will be, 0 where nobody knows.
  WaitPanel(QWidget& window, const QString& what, double seconds);
  ~WaitPanel() override;

  static constexpr int shown_after_ms = 250;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void show_progress();

  QLabel* what_;
  QLabel* rest_;
  QProgressBar* bar_;
  double seconds_;
  QElapsedTimer elapsed_;
  QTimer tick_;
};

}  // namespace ecr
