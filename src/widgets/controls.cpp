#include "widgets/controls.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyleOptionButton>

#include "widgets/look.h"
#include "widgets/pictures.h"

namespace ecr {
namespace {

bool presses(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
}

}  // namespace

CommandButton::CommandButton(const QString& name, QWidget* parent) : QPushButton{parent} {
  setObjectName(name);
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QPushButton::clicked, this, [this] {
    if (click_) click_();
  });
}

void CommandButton::emphasise() {
  setProperty("emphasis", true);
}

bool CommandButton::event(QEvent* event) {
  if (event->type() == QEvent::Shortcut) setFocus(Qt::ShortcutFocusReason);
  return QPushButton::event(event);
}

void CommandButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
    return;
  }
  QPushButton::keyPressEvent(event);
}

PictureButton::PictureButton(const QString& name, const QString& picture, QSize picture_size, QWidget* parent)
    : CommandButton{name, parent}, picture_size_{picture_size} {
  setIcon(QIcon{setup_pixmap(picture, picture_size, devicePixelRatioF())});
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMinimumSize(picture_size + QSize{32, 64});
  QFont larger = font();
  larger.setPointSizeF(larger.pointSizeF() * 1.25);
  larger.setWeight(QFont::DemiBold);
  setFont(larger);
}

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter painter{this};
  QStyleOptionButton button;
  initStyleOption(&button);
  draw_card(painter, button);

  const int text_height = fontMetrics().height();
  const int gap = 14;
  QRect picture{{}, picture_size_};
  picture.moveCenter(rect().center() - QPoint{0, (text_height + gap) / 2});
  icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
  const QRect caption{0, picture.bottom() + gap, width(), text_height};
  style()->drawItemText(&painter, caption, Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(), text(),
                        QPalette::ButtonText);
}

Picture::Picture(const QString& name, QWidget* parent) : QLabel{parent} {
  setObjectName(name);
}

void Picture::show_file(const QString& file, QSize size) {
  setPixmap(setup_pixmap(file, size, devicePixelRatioF()));
}

void Picture::on_click(std::function<void()> handler) {
  click_ = std::move(handler);
  setCursor(Qt::PointingHandCursor);
}

void Picture::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (hasFocus()) {
    QPainter painter{this};
    draw_focus(painter, rect());
  }
}

void Picture::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) && click_) click_();
}

void Picture::keyPressEvent(QKeyEvent* event) {
  if (click_ && presses(*event)) {
    click_();
  } else {
    QLabel::keyPressEvent(event);
  }
}

void set_tab_chain(std::initializer_list<QWidget*> chain) {
  set_tab_chain(std::vector<QWidget*>{chain});
}

void set_tab_chain(const std::vector<QWidget*>& chain) {
  for (std::size_t i = 1; i < chain.size(); ++i) QWidget::setTabOrder(chain[i - 1], chain[i]);
}

QLabel* make_label(const QString& name, QWidget* parent, QWidget* field) {
  auto* label = new QLabel{parent};
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  if (field != nullptr) label->setBuddy(field);
  return label;
}

QString member_name(const char* array, int index) {
  return QString::fromLatin1(array) + u'(' + QString::number(index) + u')';
}

}  // namespace ecr
