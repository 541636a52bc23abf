#include "robot/agent/reading.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTextDocument>
#include <QTextEdit>
#include <QVariant>

#include "robot/agent/refusal.h"

namespace ecr::robot {
namespace {

Refusal wrong_kind(const QWidget* control, const char* wanted) {
  return script_fault(QStringLiteral("%1 is %2").arg(control->objectName(), QLatin1String(wanted)),
                      QStringLiteral("it is a %1").arg(QLatin1String(control->metaObject()->className())));
}

QString label_text(const QLabel* label) {
  const QString text = label->text();
  switch (label->textFormat()) {
    case Qt::PlainText:
      break;
    case Qt::AutoText:
      if (!Qt::mightBeRichText(text)) break;
      [[fallthrough]];
    default: {
      QTextDocument document;
      if (label->textFormat() == Qt::MarkdownText) {
        document.setMarkdown(text);
      } else {
        document.setHtml(text);
      }
      return document.toPlainText();
    }
  }
  return label->buddy() != nullptr ? plain_caption(text) : text;
}

QPalette::ColorRole text_role(const QWidget* control) {
  if ((qobject_cast<const QLineEdit*>(control) != nullptr) ||
      (qobject_cast<const QAbstractSpinBox*>(control) != nullptr) ||
      (qobject_cast<const QTextEdit*>(control) != nullptr) ||
      (qobject_cast<const QPlainTextEdit*>(control) != nullptr) ||
      (qobject_cast<const QAbstractItemView*>(control) != nullptr)) {
    return QPalette::Text;
  }
  if (qobject_cast<const QAbstractButton*>(control) != nullptr) return control->foregroundRole();
  if (const auto* list = qobject_cast<const QComboBox*>(control)) {
    return list->isEditable() ? QPalette::Text : QPalette::ButtonText;
  }
  return control->foregroundRole();
}

}  // namespace

QString plain_caption(const QString& caption) {
  QString plain;
  plain.reserve(caption.size());
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == QLatin1Char('&') && ++i == caption.size()) break;
    plain.append(caption[i]);
  }
  return plain;
}

QString text_of(QWidget* control) {
  if (const auto* field = qobject_cast<QLineEdit*>(control)) return field->text();
  if (const auto* field = qobject_cast<QPlainTextEdit*>(control)) return field->toPlainText();
  if (const auto* field = qobject_cast<QTextEdit*>(control)) return field->toPlainText();
  if (const auto* field = qobject_cast<QAbstractSpinBox*>(control)) return field->text();
  if (const auto* list = qobject_cast<QComboBox*>(control)) {
    // A text that is none of the entries is shown as the list's placeholder.
    return list->currentIndex() < 0 && !list->isEditable() ? list->placeholderText() : list->currentText();
  }
  if (const auto* label = qobject_cast<QLabel*>(control)) return label_text(label);
  if (const auto* button = qobject_cast<QAbstractButton*>(control)) return plain_caption(button->text());
  if (const auto* frame = qobject_cast<QGroupBox*>(control)) return plain_caption(frame->title());
  if (const auto* view = qobject_cast<QListView*>(control)) {
    return view->currentIndex().data(Qt::DisplayRole).toString();
  }
  if (const QTabBar* tabs = control->inherits("QTabWidget") ? static_cast<QTabWidget*>(control)->tabBar()
                                                            : qobject_cast<QTabBar*>(control)) {
    return plain_caption(tabs->tabText(tabs->currentIndex()));
  }
  // Controls of the program's own making say what they show.
  for (const char* property : {"text", "title"}) {
    const QVariant value = control->property(property);
    if (value.isValid()) return value.toString();
  }
  throw wrong_kind(control, "something with a text");
}

Entries entries_of(QWidget* control) {
  if (const auto* list = qobject_cast<QComboBox*>(control)) {
    return {list->model(), list->modelColumn(), list->rootModelIndex()};
  }
  if (const auto* view = qobject_cast<QListView*>(control); view != nullptr && view->model() != nullptr) {
    return {view->model(), view->modelColumn(), view->rootIndex()};
  }
  throw wrong_kind(control, "a list");
}

QTableView* grid_in(QWidget* control) {
  auto* grid = qobject_cast<QTableView*>(control);
  if (grid == nullptr || grid->model() == nullptr) throw wrong_kind(control, "a grid");
  return grid;
}

QTabBar* tabs_in(QWidget* control) {
  if (const auto* tabs = qobject_cast<QTabWidget*>(control)) return tabs->tabBar();
  if (auto* bar = qobject_cast<QTabBar*>(control)) return bar;
  throw wrong_kind(control, "a tab control");
}

QStringList items_of(QWidget* control) {
  const Entries entries = entries_of(control);
  QStringList items;
  for (int row = 0; row < entries.count(); ++row) items.append(entries.text(row));
  return items;
}

int count_of(QWidget* control) {
  if (qobject_cast<QTableView*>(control) != nullptr) return grid_in(control)->model()->rowCount() + 1;
  if ((qobject_cast<QTabWidget*>(control) != nullptr) || (qobject_cast<QTabBar*>(control) != nullptr))
    return tabs_in(control)->count();
  return entries_of(control).count();
}

QString cell_of(QWidget* control, int row, int column) {
  const QAbstractItemModel* model = grid_in(control)->model();
  if (row > model->rowCount() || column >= model->columnCount()) {
    throw not_possible(QStringLiteral("a cell in row %1, column %2").arg(row).arg(column),
                       QStringLiteral("the grid has rows 0 to %1, columns 0 to %2")
                           .arg(model->rowCount())
                           .arg(model->columnCount() - 1));
  }
  const QVariant value = row == 0 ? model->headerData(column, Qt::Horizontal, Qt::DisplayRole)
                                  : model->index(row - 1, column).data(Qt::DisplayRole);
  return value.toString();
}

bool checked(QWidget* control) {
  if (const auto* button = qobject_cast<QAbstractButton*>(control); button != nullptr && button->isCheckable()) {
    return button->isChecked();
  }
  if (const auto* frame = qobject_cast<QGroupBox*>(control); frame != nullptr && frame->isCheckable())
    return frame->isChecked();
  throw wrong_kind(control, "a box that can be checked");
}

int cursor_of(QWidget* control) {
  if (const auto* list = qobject_cast<QComboBox*>(control); list != nullptr && list->isEditable()) {
    return list->lineEdit()->cursorPosition();
  }
  if (const auto* field = qobject_cast<QLineEdit*>(control)) return field->cursorPosition();
  if (const auto* field = qobject_cast<QPlainTextEdit*>(control)) return field->textCursor().position();
  if (const auto* field = qobject_cast<QTextEdit*>(control)) return field->textCursor().position();
  throw wrong_kind(control, "a field with a text cursor");
}

int max_length_of(QWidget* control) {
  if (const auto* field = qobject_cast<QLineEdit*>(control)) return field->maxLength();
  if (const auto* list = qobject_cast<QComboBox*>(control); list != nullptr && list->isEditable()) {
    return list->lineEdit()->maxLength();
  }
  const QVariant value = control->property("maxLength");
  if (value.isValid()) return value.toInt();
  throw wrong_kind(control, "a field with a maximum length");
}

QString colour_of(QWidget* control) {
  constexpr int least_saturation = 70;
  constexpr int least_value = 50;
  const QColor colour = control->palette().color(text_role(control)).toHsv();
  if (colour.hsvSaturation() >= least_saturation && colour.value() >= least_value) {
    const int hue = colour.hsvHue();
    if (hue >= 330 || hue <= 25) return QStringLiteral("red");
    if (hue >= 75 && hue <= 175) return QStringLiteral("green");
  }
  return QStringLiteral("black");
}

}  // namespace ecr::robot
