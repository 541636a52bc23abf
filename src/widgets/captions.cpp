#include "widgets/captions.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

#include "widgets/screen_text.h"

namespace ecr {
namespace {

/// What is read where no letter can be marked.
QString without_marks(const QString& text) {
  QString result;
  result.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u'&' && ++i == text.size()) break;
    result += text[i];
  }
  return result;
}

}  // namespace

void set_caption(QWidget& control, const QString& text) {
  if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
    button->setText(text);
  } else if (auto* label = qobject_cast<QLabel*>(&control)) {
    label->setText(label->buddy() != nullptr ? text : without_marks(text));
    // A field is read out under the name that stands beside it.
    if (label->buddy() != nullptr) label->buddy()->setAccessibleName(without_marks(text));
  } else if (auto* box = qobject_cast<QGroupBox*>(&control)) {
    box->setTitle(text);
  } else {
    control.setWindowTitle(text);
  }
}

void Captions::add(QWidget& control, Key key, std::string_view built_in) {
  fix(control, built_in);
  rows_.push_back({&control, key});
}

void Captions::fix(QWidget& control, std::string_view built_in) {
  set_caption(control, screen_text(built_in));
}

void Captions::lay() const {
  for (const Row& row : rows_) {
    const std::string& text = message(row.key);
    if (!text.empty()) set_caption(*row.control, screen_text(text));
  }
}

QString caption_text(Key key, std::string_view built_in) {
  return screen_text(message_or(key, built_in));
}

QString choice(int digit, Key key, std::string_view literal) {
  return crossed_choice(digit, key, key, literal);
}

QString crossed_choice(int digit, Key text, Key decides, std::string_view literal) {
  if (message(decides).empty()) return screen_text(literal);
  return QString::number(digit) + QStringLiteral(". ") + screen_text(message(text));
}

}  // namespace ecr
