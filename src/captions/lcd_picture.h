#pragma once
// A picture of the register's display, through which a message can be let run.

#include <cstddef>
#include <string>

#include <QFont>
#include <QString>
#include <QTimer>
#include <QWidget>

namespace ecr {

class LcdPicture : public QWidget {
  Q_OBJECT
  /// What the display shows, one character for each of its columns.
  Q_PROPERTY(QString text READ text)

 public:
  LcdPicture(const QString& name, QWidget* parent);

  /// The message of the display. While it runs it goes on from where it is.
  void show_message(const QString& message);

  /// Lets the message run from its beginning, a step each `interval` milliseconds; a second call changes the speed.
  void play(int interval_ms);
  /// Stops; the message stands at its beginning again.
  void stop();
  [[nodiscard]] bool plays() const { return timer_.isActive(); }
  [[nodiscard]] int interval_ms() const { return timer_.interval(); }
  /// Moves the message on by one character.
  void step();

  [[nodiscard]] QString text() const;
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::u16string message_;
  std::size_t step_ = 0;
  QTimer timer_;
  QFont face_;
  int cell_width_;
  int cell_height_;
};

}  // namespace ecr
