#pragma once
// A report on paper, or in a PDF file.

#include <vector>

#include <QString>

#include "reports/charts.h"
#include "reports/report_model.h"

class QPrinter;
class QTextDocument;

namespace ecr {

/// What goes on paper: a title, and of the rest whatever is there.
struct PrintedReport {
  QString title;
  const ReportModel* table = nullptr;
  std::vector<Chart> charts;
  QString lines;  ///< a journal's text
};

/// Fills an empty document. `width` is what its pages have, in its own units.
void lay_report(QTextDocument& document, const PrintedReport& report, double width);

/// Prints to whatever the printer is set to: paper or a file. Answers whether the printer took it.
bool print_report(QPrinter& printer, const PrintedReport& report);

}  // namespace ecr
