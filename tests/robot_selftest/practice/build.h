#pragma once
// Little helpers that put named controls on a page.

#include <functional>

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace ecr::practice {

template <class Control>
Control* named(Control* control, const char* name) {
  control->setObjectName(QLatin1String(name));
  return control;
}

template <class Handler>
QPushButton* button(QWidget* page, const char* name, const char* caption, Handler handler) {
  auto* made = named(new QPushButton{QString::fromUtf8(caption), page}, name);
  QObject::connect(made, &QAbstractButton::clicked, page, [handler] { handler(); });
  return made;
}

inline QLabel* label(QWidget* page, const char* name, const char* text) {
  return named(new QLabel{QString::fromUtf8(text), page}, name);
}

}  // namespace ecr::practice
