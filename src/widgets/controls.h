#pragma once
// Buttons, labels and pictures as the screens use them.

#include <functional>
#include <initializer_list>
#include <vector>

#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QString>

namespace ecr {

/// A button that Enter and Space press, and that takes the focus before it acts: whatever field had it is left first.
class CommandButton : public QPushButton {
  Q_OBJECT

 public:
  CommandButton(const QString& name, QWidget* parent);

  void on_click(std::function<void()> handler) { click_ = std::move(handler); }

  /// Marks the button as the screen's main one.
  void emphasise();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::function<void()> click_;
};

/// A large button: its picture, with its caption below.
class PictureButton : public CommandButton {
  Q_OBJECT

 public:
  PictureButton(const QString& name, const QString& picture, QSize picture_size, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSize picture_size_;
};

/// A picture that can be clicked, and pressed with Enter or Space where it takes the focus.
class Picture : public QLabel {
  Q_OBJECT

 public:
  Picture(const QString& name, QWidget* parent);

  /// Shows a picture file of PathSetup, scaled down into `size`; without the file the place stays empty.
  void show_file(const QString& file, QSize size);
  void on_click(std::function<void()> handler);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::function<void()> click_;
};

/// Tab leads from each control to the next one of the chain.
void set_tab_chain(std::initializer_list<QWidget*> chain);
void set_tab_chain(const std::vector<QWidget*>& chain);

/// A label with its control's name. With a `field` it names that field: for the letter marks and for who listens.
[[nodiscard]] QLabel* make_label(const QString& name, QWidget* parent, QWidget* field = nullptr);

/// "E_VatRate(1)": the name of a member of a control array.
[[nodiscard]] QString member_name(const char* array, int index);

}  // namespace ecr
