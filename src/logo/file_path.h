#pragma once
// A label that shows a path in one line, however long it is.

#include <QLabel>
#include <QString>

namespace ecr {

/// Where the path is longer than the label, its middle is left out; the whole of it stands in the tool tip. An empty
/// path shows a hint in its place, which is not the label's text.
class FilePath : public QLabel {
  Q_OBJECT

 public:
  FilePath(const QString& name, QString hint, QWidget* parent);

  void show_path(const QString& path);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString hint_;
};

}  // namespace ecr
