#include "reports/report_print.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QTextDocument>
#include <QUrl>

#include "reports/chart_painter.h"

namespace ecr {
namespace {

// Fine enough for paper.
constexpr double dots_per_unit = 3;

ChartLook look_on_paper(const QFont& font) {
  return {Qt::black, QColor{0x6B7785}, QColor{0xD5DAE0}, QColor{0x0F766E}, QColor{0xB91C1C}, font};
}

QImage chart_image(const Chart& chart, double width, const QFont& font) {
  const double height = chart_height(chart, font);
  QImage image{static_cast<int>(width * dots_per_unit), static_cast<int>(height * dots_per_unit), QImage::Format_RGB32};
  image.fill(Qt::white);
  QPainter painter{&image};
  painter.scale(dots_per_unit, dots_per_unit);
  draw_chart(painter, chart, QRectF{0, 0, width, height}, look_on_paper(font));
  return image;
}

QString table_html(const ReportModel& table) {
  const auto cell = [&table](const QString& tag, const QVariant& text, const QVariant& alignment) {
    const bool right = (alignment.toInt() & Qt::AlignRight) != 0;
    return QStringLiteral("<%1%2>%3</%1>")
        .arg(tag, right ? QStringLiteral(" align=right") : QStringLiteral(" align=left"),
             text.toString().toHtmlEscaped());
  };
  QString html =
      QStringLiteral("<table width='100%' cellspacing=0 cellpadding=3 border=0><thead><tr bgcolor='#eef0f2'>");
  for (int column = 0; column < table.columnCount(); ++column) {
    html += cell(QStringLiteral("th"), table.headerData(column, Qt::Horizontal, Qt::DisplayRole),
                 table.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole));
  }
  html += QStringLiteral("</tr></thead>");
  for (int row = 0; row < table.rowCount(); ++row) {
    html += QStringLiteral("<tr>");
    for (int column = 0; column < table.columnCount(); ++column) {
      const QModelIndex place = table.index(row, column);
      html += cell(QStringLiteral("td"), table.data(place, Qt::DisplayRole), table.data(place, Qt::TextAlignmentRole));
    }
    html += QStringLiteral("</tr>");
  }
  if (table.has_sums()) {
    html += QStringLiteral("<tr bgcolor='#eef0f2'>");
    for (int column = 0; column < table.columnCount(); ++column) {
      html += cell(QStringLiteral("th"), table.sum(column),
                   table.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole));
    }
    html += QStringLiteral("</tr>");
  }
  return html + QStringLiteral("</table>");
}

}  // namespace

void lay_report(QTextDocument& document, const PrintedReport& report, double width) {
  QFont font = document.defaultFont();
  font.setPointSizeF(9);
  document.setDefaultFont(font);
  QString html = QStringLiteral("<h2>%1</h2>").arg(report.title.toHtmlEscaped());
  for (std::size_t i = 0; i < report.charts.size(); ++i) {
    const QImage image = chart_image(report.charts[i], width, font);
    const QString name = QStringLiteral("chart:%1").arg(i);
    document.addResource(QTextDocument::ImageResource, QUrl{name}, image);
    html += QStringLiteral("<p><img src='%1' width='%2' height='%3'></p>")
                .arg(name)
                .arg(image.width() / dots_per_unit)
                .arg(image.height() / dots_per_unit);
  }
  if (report.table != nullptr) html += table_html(*report.table);
  if (!report.lines.isEmpty()) html += QStringLiteral("<pre>%1</pre>").arg(report.lines.toHtmlEscaped());
  document.setHtml(html);
}

bool print_report(QPrinter& printer, const PrintedReport& report) {
  // The toolkit says only on the error output that it could not write a file.
  if (!printer.outputFileName().isEmpty() && !QFile{printer.outputFileName()}.open(QIODevice::ReadWrite)) return false;
  QTextDocument document;
  // The document lays itself out in points of the screen's kind and is scaled onto the paper, margins included.
  constexpr double points_per_inch = 72;
  const QRectF page = printer.pageRect(QPrinter::Inch);
  lay_report(document, report, (page.width() * points_per_inch) - 40);
  document.print(&printer);
  return printer.printerState() != QPrinter::Error;
}

}  // namespace ecr
