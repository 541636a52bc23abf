#pragma once
// The pictures of a report, one below the other.

#include <vector>

#include <QWidget>

#include "reports/charts.h"

namespace ecr {

class ChartView : public QWidget {
  Q_OBJECT

 public:
  ChartView(const QString& name, QWidget* parent);

  void show_charts(std::vector<Chart> charts);
  [[nodiscard]] const std::vector<Chart>& charts() const { return charts_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Chart> charts_;
};

}  // namespace ecr
