#pragma once
// The chosen picture as it will look on paper: at the head of a receipt, dot for dot where there is room.

#include <string_view>

#include <QImage>
#include <QLabel>
#include <QString>

namespace ecr {

/// The picture of a bitmap file with any bytes inside, every dot of which has a colour; a null one where it is no
/// bitmap.
[[nodiscard]] QImage picture_of_bitmap(std::string_view bytes);

class PaperPreview : public QLabel {
  Q_OBJECT

 public:
  /// `hint` stands where the logo will be while there is none.
  PaperPreview(const QString& name, QString hint, QWidget* parent);

  /// A picture that is wider than the paper is scaled down. A null one leaves the place empty.
  void show_picture(const QImage& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QSize shown_size() const;

  QString hint_;
  QImage picture_;
};

}  // namespace ecr
