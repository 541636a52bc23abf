#include "house/screen_check.h"

#include <algorithm>
#include <vector>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSet>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

#include "support_qt/person.h"

namespace ecr::test {
namespace {

QString called(const QWidget& control) {
  const QString kind = QString::fromLatin1(control.metaObject()->className());
  return control.objectName().isEmpty() ? QStringLiteral("a nameless ") + kind : control.objectName();
}

/// A part that the toolkit makes for itself inside of a control.
bool is_inner_part(const QWidget& widget, const QWidget& screen) {
  if (widget.objectName().startsWith(QStringLiteral("qt_"))) return true;
  for (const QWidget* outer = widget.parentWidget(); outer != nullptr && outer != &screen;
       outer = outer->parentWidget()) {
    const bool has_parts =
        qobject_cast<const QComboBox*>(outer) != nullptr || qobject_cast<const QAbstractItemView*>(outer) != nullptr ||
        qobject_cast<const QAbstractSpinBox*>(outer) != nullptr || qobject_cast<const QTabBar*>(outer) != nullptr ||
        qobject_cast<const QLineEdit*>(outer) != nullptr;
    if (has_parts) return true;
  }
  return false;
}

/// The screen's own controls that can be seen.
std::vector<QWidget*> controls_of(const QWidget& screen) {
  std::vector<QWidget*> controls;
  for (QWidget* widget : screen.findChildren<QWidget*>()) {
    if (!widget->isWindow() && widget->isVisible() && !is_inner_part(*widget, screen)) controls.push_back(widget);
  }
  return controls;
}

bool needs_a_name(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    return !label->text().isEmpty() || !label->pixmap(Qt::ReturnByValue).isNull();
  }
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QTabWidget*>(&widget) != nullptr || qobject_cast<const QGroupBox*>(&widget) != nullptr;
}

QString needs(const QWidget& control, QSize needed) {
  return QStringLiteral("%1 has %2 x %3 and needs %4 x %5")
      .arg(called(control))
      .arg(control.width())
      .arg(control.height())
      .arg(needed.width())
      .arg(needed.height());
}

bool fits(QSize needed, QSize given) {
  return needed.width() <= given.width() && needed.height() <= given.height();
}

void check_label(const QLabel& label, QStringList& complaints) {
  if (label.text().isEmpty()) return;
  QSize needed = label.sizeHint();
  if (label.wordWrap()) {
    // The longest word must have room in a line, and all lines in the label.
    int widest = 0;
    for (const QString& word : label.text().split(u' ')) {
      widest = std::max(widest, label.fontMetrics().horizontalAdvance(word));
    }
    needed = {widest, label.heightForWidth(label.width())};
  }
  if (!fits(needed, label.size())) complaints.append(needs(label, needed));
}

void check_list(const QComboBox& list, QStringList& complaints) {
  QStyleOptionComboBox option;
  option.initFrom(&list);
  option.editable = list.isEditable();
  option.subControls = QStyle::SC_All;
  const int given =
      list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list).width();
  for (int i = 0; i < list.count(); ++i) {
    const int needed = list.fontMetrics().horizontalAdvance(list.itemText(i));
    if (needed > given) {
      complaints.append(QStringLiteral("%1 has room for %2 and its entry \"%3\" needs %4")
                            .arg(called(list))
                            .arg(given)
                            .arg(list.itemText(i))
                            .arg(needed));
    }
  }
}

void check_headings(const QTableView& grid, QStringList& complaints) {
  const QHeaderView& header = *grid.horizontalHeader();
  if (!header.isVisible()) return;
  for (int column = 0; column < header.count(); ++column) {
    const QString text = header.model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int needed = header.fontMetrics().horizontalAdvance(text);
    if (needed > header.sectionSize(column)) {
      complaints.append(QStringLiteral("%1's heading \"%2\" has %3 and needs %4")
                            .arg(called(grid), text)
                            .arg(header.sectionSize(column))
                            .arg(needed));
    }
  }
}

bool can_have_the_focus(const QWidget& widget) {
  return widget.focusPolicy() != Qt::NoFocus && widget.isEnabled() && widget.isVisible();
}

/// One option of a set stands for all of them: the arrow keys lead to the others.
bool is_reached_with_its_set(const QRadioButton& option, const QSet<const QWidget*>& reached) {
  if (option.group() != nullptr) {
    const auto buttons = option.group()->buttons();
    return std::any_of(buttons.begin(), buttons.end(),
                       [&](const QAbstractButton* one) { return reached.contains(one); });
  }
  const auto siblings = option.parentWidget()->findChildren<QRadioButton*>(QString{}, Qt::FindDirectChildrenOnly);
  return option.autoExclusive() &&
         std::any_of(siblings.begin(), siblings.end(), [&](const QRadioButton* one) { return reached.contains(one); });
}

/// Adds what the arrow keys reach from controls of the same kind that lie beside `missed` and are reached: a group of
/// keys is one stop of Tab.
void add_reached_by_arrows(const QWidget& missed, QSet<const QWidget*>& reached) {
  const auto is_one_of_them = [&](const QWidget* widget) {
    return widget != nullptr && widget->parentWidget() == missed.parentWidget() &&
           widget->metaObject() == missed.metaObject();
  };
  std::vector<QWidget*> to_go_on_from;
  for (QWidget* beside : missed.parentWidget()->findChildren<QWidget*>(QString{}, Qt::FindDirectChildrenOnly)) {
    if (is_one_of_them(beside) && reached.contains(beside)) to_go_on_from.push_back(beside);
  }
  while (!to_go_on_from.empty()) {
    QWidget* from = to_go_on_from.back();
    to_go_on_from.pop_back();
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
      from->setFocus(Qt::OtherFocusReason);
      press(key);
      QWidget* now = QApplication::focusWidget();
      if (!is_one_of_them(now) || reached.contains(now)) continue;
      reached.insert(now);
      to_go_on_from.push_back(now);
    }
  }
}

}  // namespace

QStringList complaints_about_names(const QWidget& screen) {
  QStringList complaints;
  QSet<QString> names;
  if (screen.objectName().isEmpty()) complaints.append(QStringLiteral("the screen itself has no name"));
  for (const QWidget* widget : screen.findChildren<QWidget*>()) {
    if (is_inner_part(*widget, screen)) continue;
    const QString name = widget->objectName();
    if (name.isEmpty()) {
      if (needs_a_name(*widget)) complaints.append(called(*widget));
    } else if (names.contains(name)) {
      complaints.append(name + QStringLiteral(" stands twice"));
    }
    names.insert(name);
  }
  return complaints;
}

QStringList complaints_about_cut_texts(const QWidget& screen) {
  QStringList complaints;
  for (const QWidget* control : controls_of(screen)) {
    if (const auto* label = qobject_cast<const QLabel*>(control)) {
      check_label(*label, complaints);
    } else if (qobject_cast<const QAbstractButton*>(control) != nullptr) {
      if (!fits(control->sizeHint(), control->size())) complaints.append(needs(*control, control->sizeHint()));
    } else if (const auto* box = qobject_cast<const QGroupBox*>(control)) {
      const int needed = box->fontMetrics().horizontalAdvance(box->title());
      if (needed > box->width()) complaints.append(needs(*box, {needed, box->height()}));
    } else if (const auto* list = qobject_cast<const QComboBox*>(control)) {
      check_list(*list, complaints);
    } else if (const auto* grid = qobject_cast<const QTableView*>(control)) {
      check_headings(*grid, complaints);
    } else if (const auto* tabs = qobject_cast<const QTabWidget*>(control)) {
      const QSize needed = tabs->tabBar()->sizeHint();
      if (needed.width() > tabs->width()) complaints.append(needs(*tabs, needed));
    } else if (qobject_cast<const QLineEdit*>(control) != nullptr) {
      // A line of text scrolls, but it must be seen from top to bottom.
      if (control->height() < control->fontMetrics().height()) complaints.append(needs(*control, control->sizeHint()));
    }
  }
  return complaints;
}

QStringList complaints_about_places(const QWidget& screen) {
  QStringList complaints;
  const std::vector<QWidget*> controls = controls_of(screen);
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const QWidget& one = *controls[i];
    if (one.size().isEmpty()) continue;
    const QWidget& lies_on = *one.parentWidget();
    const auto* scrolls = qobject_cast<const QAbstractScrollArea*>(lies_on.parentWidget());
    const bool is_scrolled = scrolls != nullptr && scrolls->viewport() == &lies_on;
    if (!is_scrolled && !lies_on.rect().contains(one.geometry())) {
      complaints.append(called(one) + QStringLiteral(" reaches out of ") + called(lies_on));
    }
    for (std::size_t j = i + 1; j < controls.size(); ++j) {
      const QWidget& other = *controls[j];
      if (other.parentWidget() != &lies_on || other.size().isEmpty()) continue;
      if (one.geometry().intersects(other.geometry())) {
        complaints.append(called(one) + QStringLiteral(" and ") + called(other) + QStringLiteral(" overlap"));
      }
    }
  }
  return complaints;
}

QStringList complaints_about_letter_marks(const QWidget& screen) {
  QStringList complaints;
  QHash<QKeySequence, QString> marked;
  for (const QWidget* control : controls_of(screen)) {
    QString text;
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) text = button->text();
    if (const auto* label = qobject_cast<const QLabel*>(control); label != nullptr && label->buddy() != nullptr) {
      text = label->text();
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(control)) text = box->title();
    const QKeySequence mark = QKeySequence::mnemonic(text);
    if (mark.isEmpty()) continue;
    if (marked.contains(mark)) {
      complaints << QStringLiteral("%1 and %2 share %3").arg(marked[mark], called(*control), mark.toString());
    }
    marked[mark] = called(*control);
  }
  return complaints;
}

QStringList complaints_about_silent_controls(const QWidget& screen) {
  QStringList complaints;
  for (QWidget* control : controls_of(screen)) {
    if (control->focusPolicy() == Qt::NoFocus) continue;
    const QAccessibleInterface* said = QAccessible::queryAccessibleInterface(control);
    if (said == nullptr || said->text(QAccessible::Name).isEmpty()) complaints.append(called(*control));
  }
  return complaints;
}

QStringList complaints_about_tab(QWidget& screen) {
  QWidget* const before = QApplication::focusWidget();
  QSet<const QWidget*> reached;
  // Once round, and a few more in case the focus starts outside of the circle.
  const auto steps = 2 * screen.findChildren<QWidget*>().size() + 10;
  for (qsizetype i = 0; i < steps; ++i) {
    if (const QWidget* now = QApplication::focusWidget()) reached.insert(now);
    press(Qt::Key_Tab);
  }
  QStringList complaints;
  for (const QWidget* control : controls_of(screen)) {
    if (!can_have_the_focus(*control) || reached.contains(control)) continue;
    if (control->focusProxy() != nullptr && reached.contains(control->focusProxy())) continue;
    const auto* option = qobject_cast<const QRadioButton*>(control);
    if (option != nullptr && is_reached_with_its_set(*option, reached)) continue;
    add_reached_by_arrows(*control, reached);
    if (reached.contains(control)) continue;
    complaints.append(called(*control));
  }
  if (before != nullptr) before->setFocus(Qt::OtherFocusReason);
  return complaints;
}

}  // namespace ecr::test
