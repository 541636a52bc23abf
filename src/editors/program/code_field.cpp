#include "editors/program/code_field.h"

#include "widgets/field.h"

namespace ecr {

void make_code_field(Field& field, const Decimal& maximum) {
  field.let_in(Field::Keys::digits);
  field.setAlignment(Qt::AlignRight);
  field.on_entered([&field] {
    if (value_of(field.text()).is_zero()) field.clear();
  });
  field.on_change([&field, maximum] {
    if (value_of(field.text()) > maximum) refuse_value(field);
  });
  field.on_left([&field] {
    if (field.text().isEmpty()) field.show_text(QStringLiteral("0"));
  });
}

}  // namespace ecr
