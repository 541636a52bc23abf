#include "widgets/session_mark.h"

#include <QPainter>

#include "core/global.h"
#include "core/model.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int dot = 8;
constexpr int gap = 7;
constexpr QLatin1String between{"   "};

}  // namespace

QString port_and_model() {
  const QString port = Global::ComPort > 0 ? QStringLiteral("COM %1").arg(Global::ComPort) : QStringLiteral("COM –");
  return port + between + screen_text(chosen_model().name);
}

SessionMark::SessionMark(QWidget* parent) : QLabel{parent} {
  setObjectName(QStringLiteral("L_Session"));
  setContentsMargins(dot + gap, 0, 0, 0);
  make_hint(*this);
}

void SessionMark::show_session(const QString& file) {
  linked_ = Global::ComPort > 0;
  setText(file.isEmpty() ? port_and_model() : port_and_model() + between + file);
}

void SessionMark::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  QPainter painter{this};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(linked_ ? text_green() : text_red());
  painter.drawEllipse(QRectF{0, (height() - dot) / 2.0, dot, dot});
}

}  // namespace ecr
