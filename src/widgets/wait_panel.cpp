#include "widgets/wait_panel.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QVBoxLayout>

#include "widgets/controls.h"
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
    show_step(steps->what_.isEmpty() ? what : steps->what_, steps->begun_, steps->steps_);
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
    if (give_up_ != nullptr) give_up_->setFocus();
  });
  QCoreApplication::instance()->installEventFilter(this);
}

WaitPanel::~WaitPanel() {
  QCoreApplication::instance()->removeEventFilter(this);
}

void WaitPanel::show_step(const QString& what, int nth, int of) {
  what_->setText(what);
  bar_->setRange(0, of);
  bar_->setValue(nth - 1);
  rest_->setText(own_words(OwnText::one_of_several).arg(nth).arg(of));
  rest_->setVisible(true);
}

void WaitPanel::let_give_up(const QString& words, std::function<void()> given_up) {
  given_up_ = std::move(given_up);
  give_up_ = new CommandButton{QStringLiteral("C_GiveUp"), what_->parentWidget()};
  give_up_->setText(words);
  give_up_->on_click([this] { give_up(); });
  qobject_cast<QVBoxLayout*>(what_->parentWidget()->layout())->addWidget(give_up_, 0, Qt::AlignCenter);
}

void WaitPanel::give_up() {
  if (give_up_ == nullptr || !give_up_->isEnabled()) return;
  give_up_->setEnabled(false);
  given_up_();
}

bool WaitPanel::is_let_in(const QObject* watched, const QEvent& event) const {
  if (give_up_ == nullptr) return false;
  if (event.type() == QEvent::Close) return true;
  // A key that is still held down, from the press that began the wait, is not meant for the card.
  if (event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).isAutoRepeat()) return false;
  // A window hands its input on to its widgets, where it comes by here again.
  if (watched->isWindowType()) return true;
  const auto* widget = qobject_cast<const QWidget*>(watched);
  return widget != nullptr && (widget == this || isAncestorOf(widget));
}

bool WaitPanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  if (!is_input(*event) || is_let_in(watched, *event)) return QWidget::eventFilter(watched, event);
  // A window whose close box is pressed stays.
  if (event->type() == QEvent::Close) event->ignore();
  return true;
}

bool WaitPanel::focusNextPrevChild(bool) {
  // The keyboard stays on the card.
  return true;
}

void WaitPanel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    give_up();
  } else {
    QWidget::keyPressEvent(event);
  }
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
