#include "widgets/choice_list.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>

#include "core/codecs.h"
#include "core/decimal.h"
#include "widgets/screen_text.h"
#include "widgets/typing.h"

namespace ecr {
namespace {

/// Whether a key can have changed the number in the list's own field.
bool edits_the_number(const QKeyEvent& event) {
  const QString typed = typed_text(event);
  return (!typed.isEmpty() && all_digits(typed)) || event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete ||
         event.matches(QKeySequence::Paste) || event.matches(QKeySequence::Cut);
}

int number_in(const QString& text) {
  return static_cast<int>(std::clamp<std::int64_t>(leading_number(page_bytes(text)), 0, 1'000'000));
}

/// The numbers from 1 on, made when they are asked for: a list of thousands is filled anew by each save.
class Numbers : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void fill(int last) {
    beginResetModel();
    last_ = last;
    endResetModel();
  }

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : last_; }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
    return QString::number(index.row() + 1);
  }

 private:
  int last_ = 0;
};

}  // namespace

ChoiceList::ChoiceList(const QString& name, QWidget* parent, Typing typing) : QComboBox{parent}, typing_{typing} {
  setObjectName(name);
  setMaxVisibleItems(16);
  connect(this, &QComboBox::activated, this, [this] {
    if (click_) click_();
  });
}

void ChoiceList::fill(const QStringList& entries) {
  clear();
  addItems(entries);
  show_nothing();
}

void ChoiceList::show_text(const QString& text) {
  const int index = findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  setPlaceholderText(index < 0 ? text : QString{});
  setCurrentIndex(index);
}

bool ChoiceList::show_number(int number) {
  for (int index = 0; index < count(); ++index) {
    if (ottieni_numero(page_bytes(itemText(index)), ".") != number) continue;
    show_entry(index);
    return true;
  }
  return false;
}

void ChoiceList::show_entry(int position) {
  setPlaceholderText({});
  setCurrentIndex(position);
}

void ChoiceList::show_nothing() {
  show_text({});
}

QString ChoiceList::text() const {
  return currentIndex() < 0 ? placeholderText() : currentText();
}

std::uint8_t ChoiceList::number() const {
  return ottieni_numero(page_bytes(text()), ".");
}

int ChoiceList::whole_number() const {
  return number_in(text());
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
  if (typing_ == Typing::dropped && !searched_text(*event).isEmpty()) {
    event->accept();
    return;
  }
  QComboBox::keyPressEvent(event);
}

void ChoiceList::inputMethodEvent(QInputMethodEvent* event) {
  if (typing_ == Typing::dropped) {
    event->accept();
    return;
  }
  QComboBox::inputMethodEvent(event);
}

void ChoiceList::showPopup() {
  // The list that drops down would look for an entry that begins with what is typed.
  view()->installEventFilter(this);
  QComboBox::showPopup();
}

bool ChoiceList::eventFilter(QObject* watched, QEvent* event) {
  if (typing_ == Typing::dropped) {
    if (event->type() == QEvent::InputMethod) return true;
    // The open list, other than the closed one, does not look for anything while Ctrl is held.
    if (event->type() == QEvent::KeyPress && !typed_text(static_cast<const QKeyEvent&>(*event)).isEmpty()) {
      return true;
    }
  }
  return QComboBox::eventFilter(watched, event);
}

NumberList::NumberList(const QString& name, int last, QWidget* parent) : QComboBox{parent}, last_{last} {
  setObjectName(name);
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  setMaxVisibleItems(16);
  setModel(new Numbers{this});
  // Its width is that of the last number; to look through all of them would cost time.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(static_cast<int>(QString::number(last).size()));
  if (auto* view = qobject_cast<QListView*>(this->view())) view->setUniformItemSizes(true);
  connect(this, &QComboBox::activated, this, [this] { load(); });
}

void NumberList::fill() {
  if (count() != last_) static_cast<Numbers*>(model())->fill(last_);
  // As a list stands behind its filling.
  show_number(1);
}

void NumberList::show_number(int number) {
  setCurrentIndex(number - 1);
  setEditText(QString::number(number));
  on_screen_ = this->number();
}

int NumberList::number() const {
  return number_in(currentText());
}

// The list itself has the focus and hands keys on to its field.
void NumberList::keyPressEvent(QKeyEvent* event) {
  if (!all_digits(typed_text(*event))) {
    event->accept();
    return;
  }
  QComboBox::keyPressEvent(event);
}

void NumberList::keyReleaseEvent(QKeyEvent* event) {
  QComboBox::keyReleaseEvent(event);
  // A number that came in without a key, from the field's menu, is taken up by the next key, whichever it is.
  if (edits_the_number(*event) || number() != on_screen_) typed();
}

void NumberList::inputMethodEvent(QInputMethodEvent* event) {
  const auto digits = digits_alone(*event);
  QComboBox::inputMethodEvent(digits.get());
  event->setAccepted(digits->isAccepted());
  // There may be no key to be released.
  if (changes_text(*digits)) typed();
}

void NumberList::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  const bool moved_here = event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason;
  if (moved_here) QMetaObject::invokeMethod(lineEdit(), &QLineEdit::selectAll, Qt::QueuedConnection);
}

void NumberList::typed() {
  if (number() > last_) setEditText(QString::number(last_));
  // The arrow keys go on from the number that was typed.
  const int index = currentText() == QString::number(number()) ? number() - 1 : -1;
  if (index >= 0 && index != currentIndex()) {
    const int cursor = lineEdit()->cursorPosition();
    setCurrentIndex(index);
    lineEdit()->setCursorPosition(cursor);
  }
  load();
}

void NumberList::load() {
  // An emptied list, or a 0, names no record: the one on screen stays.
  if (number() == 0) return;
  on_screen_ = number();
  if (click_) click_(on_screen_);
}

QStringList bare_numbers(int first, int last) {
  QStringList numbers;
  numbers.reserve(last - first + 1);
  for (int number = first; number <= last; ++number) numbers.append(QString::number(number));
  return numbers;
}

QString label_of(const QString& entry) {
  const qsizetype blank = entry.indexOf(u' ');
  return blank < 0 ? entry : entry.mid(blank + 1);
}

}  // namespace ecr
