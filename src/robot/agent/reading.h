#pragma once
// What a person reads off a control. Each function throws a Refusal when the control is not of a kind that has the
// thing asked for.

#include <QAbstractItemView>
#include <QComboBox>
#include <QString>
#include <QStringList>
#include <QTabBar>
#include <QTableView>
#include <QWidget>

namespace ecr::robot {

/// A caption with its mnemonic marks resolved: "&Save" reads "Save", "&&" reads "&".
[[nodiscard]] QString plain_caption(const QString& caption);

[[nodiscard]] QString text_of(QWidget* control);
[[nodiscard]] QStringList items_of(QWidget* control);
[[nodiscard]] int count_of(QWidget* control);
[[nodiscard]] bool checked(QWidget* control);
[[nodiscard]] int cursor_of(QWidget* control);
[[nodiscard]] int max_length_of(QWidget* control);

/// "red", "green" or "black", whatever the shade.
[[nodiscard]] QString colour_of(QWidget* control);

/// Row 0 is the heading; throws a Refusal if there is no such cell.
[[nodiscard]] QString cell_of(QWidget* control, int row, int column);

[[nodiscard]] QTableView* grid_in(QWidget* control);
[[nodiscard]] QTabBar* tabs_in(QWidget* control);

/// The list of entries behind a choice list or list view, with the column that shows; nullptr if it is neither.
struct Entries {
  QAbstractItemModel* model = nullptr;
  int column = 0;
  QModelIndex root;

  [[nodiscard]] int count() const { return model->rowCount(root); }
  [[nodiscard]] QModelIndex index(int row) const { return model->index(row, column, root); }
  [[nodiscard]] QString text(int row) const { return index(row).data(Qt::DisplayRole).toString(); }
};
[[nodiscard]] Entries entries_of(QWidget* control);

}  // namespace ecr::robot
