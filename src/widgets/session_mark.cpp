#include "widgets/session_mark.h"

#include <QPainter>

#include "core/global.h"
#include "widgets/look.h"

namespace ecr {
namespace {

constexpr int dot = 8;
constexpr int gap = 7;

}  // namespace

SessionMark::SessionMark(QWidget* parent) : QLabel{parent} {
  setObjectName(QStringLiteral("L_Session"));
  setContentsMargins(dot + gap, 0, 0, 0);
  make_hint(*this);
}

void SessionMark::show_session(const QString& file) {
  linked_ = Global::ComPort > 0;
  QString text = linked_ ? QStringLiteral("COM %1").arg(Global::ComPort) : QStringLiteral("COM –");
  text += Global::EcrModel == Global::model_z320 ? QStringLiteral("   ECRZ320") : QStringLiteral("   ECRZ300");
  if (!file.isEmpty()) text += QStringLiteral("   ") + file;
  setText(text);
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
