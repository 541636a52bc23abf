#pragma once

#include <QStackedWidget>
#include <QTabWidget>

namespace ecr {

/// What a tab control's pages lie on. A page that lies there from its beginning is not dressed once more when it
/// becomes a tab: with many controls on it that costs more than all else.
[[nodiscard]] inline QWidget* parent_of_pages(QTabWidget& tabs) {
  auto* stack = tabs.findChild<QStackedWidget*>(QString{}, Qt::FindDirectChildrenOnly);
  return stack != nullptr ? static_cast<QWidget*>(stack) : &tabs;
}

}  // namespace ecr
