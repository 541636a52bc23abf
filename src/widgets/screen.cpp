#include "widgets/screen.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "widgets/help.h"

namespace ecr {
namespace {

Stage* current_stage = nullptr;

}  // namespace

Screen::Screen(const QString& name) : QWidget{Stage::current()} {
  hide();
  setObjectName(name);
  setFocusPolicy(Qt::NoFocus);
}

const Screen* Screen::of(const QWidget* widget) {
  while (widget != nullptr) {
    if (const auto* screen = qobject_cast<const Screen*>(widget)) return screen;
    widget = widget->parentWidget();
  }
  return nullptr;
}

void Screen::unload() {
  unloading_ = true;
  if (stage_ != nullptr && stage_->top() == this) stage_->close_top();
}

void Screen::open(Screen* screen) {
  stage_->open(screen);
}

QString Screen::help_page() const {
  return objectName();
}

Stage::Stage() : layout_{new QStackedLayout{this}} {
  setObjectName(QStringLiteral("Stage"));
  setMinimumSize(900, 600);
  resize(1024, 700);
  current_stage = this;
}

Stage::~Stage() {
  if (current_stage == this) current_stage = nullptr;
}

Stage* Stage::current() {
  return current_stage;
}

void Stage::open(Screen* screen) {
  screen->stage_ = this;
  screen->load();
  screens_.push_back(screen);
  layout_->addWidget(screen);
  screen->installEventFilter(this);
  show_top();
  if (QWidget* first = screen->first_focus()) first->setFocus(Qt::OtherFocusReason);
}

void Stage::close_top() {
  Screen* closed = screens_.back();
  screens_.pop_back();
  closed->removeEventFilter(this);
  if (!screens_.empty()) show_top();
  layout_->removeWidget(closed);
  closed->hide();
  closed->deleteLater();
  if (!screens_.empty()) {
    Screen& below = *screens_.back();
    below.seen_again();
    QWidget* focus = below.focusWidget() != nullptr ? below.focusWidget() : below.first_focus();
    if (focus != nullptr) focus->setFocus(Qt::OtherFocusReason);
  }
}

void Stage::show_top() {
  layout_->setCurrentWidget(top());
  setWindowTitle(top()->windowTitle());
}

void Stage::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (top() != nullptr) top()->unload();
}

bool Stage::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowTitleChange && watched == top()) setWindowTitle(top()->windowTitle());
  return QWidget::eventFilter(watched, event);
}

}  // namespace ecr
