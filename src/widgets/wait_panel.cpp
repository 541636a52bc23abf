#include "widgets/wait_panel.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QVBoxLayout>

#include "widgets/screen_text.h"

namespace ecr {
namespace {

bool is_input(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

WaitSteps* current_steps = nullptr;

}  // namespace

WaitSteps::WaitSteps(int steps) : steps_{steps} {
  elapsed_.start();
  current_steps = this;
}

WaitSteps::~WaitSteps() {
  current_steps = nullptr;
}

void WaitSteps::next(const QString& what) {
  ++begun_;
  what_ = what;
}

WaitPanel::WaitPanel(QWidget& window, const QString& what, double seconds) : QWidget{&window}, seconds_{seconds} {
  setObjectName(QStringLiteral("WaitPanel"));
  setGeometry(window.rect());
  auto* card = new QWidget{this};
  card->setObjectName(QStringLiteral("WaitCard"));
  card->setAutoFillBackground(true);
  what_ = new QLabel{what, card};
  what_->setObjectName(QStringLiteral("WaitWhat"));
  what_->setTextFormat(Qt::PlainText);
  bar_ = new QProgressBar{card};
  bar_->setObjectName(QStringLiteral("WaitBar"));
  bar_->setTextVisible(false);
  bar_->setMinimumWidth(360);
  rest_ = new QLabel{card};
  rest_->setObjectName(QStringLiteral("WaitRest"));
  rest_->setVisible(seconds > 0);
  // A bar without an end runs to and fro.
  bar_->setRange(0, seconds > 0 ? static_cast<int>(seconds * 1000) : 0);
  int shown_after = shown_after_ms;
  if (const WaitSteps* steps = current_steps; steps != nullptr && seconds <= 0) {
    if (!steps->what_.isEmpty()) what_->setText(steps->what_);
    bar_->setRange(0, steps->steps_);
    bar_->setValue(steps->begun_ - 1);
    rest_->setText(own_words(OwnText::one_of_several).arg(steps->begun_).arg(steps->steps_));
    rest_->setVisible(true);
    shown_after = static_cast<int>(std::max<qint64>(0, shown_after_ms - steps->elapsed_.elapsed()));
  }
  auto* inside = new QVBoxLayout{card};
  inside->setContentsMargins(28, 24, 28, 24);
  inside->setSpacing(14);
  inside->addWidget(what_);
  inside->addWidget(bar_);
  inside->addWidget(rest_);
  auto* outside = new QVBoxLayout{this};
  outside->addWidget(card, 0, Qt::AlignCenter);

  elapsed_.start();
  connect(&tick_, &QTimer::timeout, this, [this] { show_progress(); });
  tick_.start(50);
  QTimer::singleShot(shown_after, this, [this] {
    show_progress();
    show();
    raise();
  });
  QCoreApplication::instance()->installEventFilter(this);
}

WaitPanel::~WaitPanel() {
  QCoreApplication::instance()->removeEventFilter(this);
}

bool WaitPanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  if (!is_input(*event)) return QWidget::eventFilter(watched, event);
  // A window whose close box is pressed stays.
  if (event->type() == QEvent::Close) event->ignore();
  return true;
}

void WaitPanel::paintEvent(QPaintEvent*) {
  QColor veil = palette().color(QPalette::Window);
  veil.setAlpha(170);
  QPainter{this}.fillRect(rect(), veil);
}

void WaitPanel::show_progress() {
  if (seconds_ <= 0) return;
  const double passed = static_cast<double>(elapsed_.elapsed()) / 1000;
  bar_->setValue(static_cast<int>(std::min(passed, seconds_) * 1000));
  const int left = static_cast<int>(std::ceil(std::max(0.0, seconds_ - passed)));
  rest_->setText(own_words(OwnText::time_left).arg(left / 60).arg(left % 60, 2, 10, QLatin1Char('0')));
}

}  // namespace ecr
