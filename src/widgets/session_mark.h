#pragma once
// One line at the top of a screen: on which port the register is, which model is programmed, which file is open.

#include <QLabel>
#include <QString>

namespace ecr {

/// The port of the link and the model, as the first two pieces of the line: "COM 4   ECRZ320".
[[nodiscard]] QString port_and_model();

class SessionMark : public QLabel {
  Q_OBJECT

 public:
  explicit SessionMark(QWidget* parent);

  /// Says how things stand now. `file` is the file that the screen changes, without its folder; empty if it changes
  /// none.
  void show_session(const QString& file);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool linked_ = false;
};

}  // namespace ecr
