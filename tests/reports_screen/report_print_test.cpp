#include "reports/report_print.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>
#include <QTextDocument>

#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

class ReportPrint : public ScreenTest {
 protected:
  ReportPrint() { model.show({{{"Name"}, {"Total", true, true}}, {{"COFFEE", "2.50"}, {"<b>TEA</b>", "1.80"}}}); }

  bool print(const PrintedReport& report, const QString& file) {
    QPrinter printer{QPrinter::HighResolution};
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    return print_report(printer, report);
  }

  ReportModel model;
};

TEST_F(ReportPrint, ATableIsPrintedWithItsSums) {
  QTextDocument document;
  lay_report(document, {QStringLiteral("ALL PLU"), &model, {}, {}}, 500);
  const QString text = document.toPlainText();
  for (const char* part : {"ALL PLU", "Name", "Total", "COFFEE", "2.50", "<b>TEA</b>", "Sum", "4.30"}) {
    EXPECT_TRUE(text.contains(QString::fromLatin1(part))) << part;
  }
}

TEST_F(ReportPrint, PicturesGoIntoTheDocument) {
  const Chart chart{"Sales", Chart::Kind::bars, {{"COFFEE", 2.5, "2.50"}}};
  QTextDocument document;
  lay_report(document, {QStringLiteral("ALL PLU"), nullptr, {chart, chart}, {}}, 500);
  EXPECT_FALSE(document.resource(QTextDocument::ImageResource, QUrl{QStringLiteral("chart:0")}).isNull());
  EXPECT_FALSE(document.resource(QTextDocument::ImageResource, QUrl{QStringLiteral("chart:1")}).isNull());
  EXPECT_TRUE(document.resource(QTextDocument::ImageResource, QUrl{QStringLiteral("chart:2")}).isNull());
}

TEST_F(ReportPrint, AJournalKeepsItsLines) {
  QTextDocument document;
  lay_report(document, {QStringLiteral("FULL EJ"), nullptr, {}, QStringLiteral("TEA   1.80\n\nTOTAL & <all>\n")}, 500);
  EXPECT_TRUE(document.toPlainText().contains(QStringLiteral("TEA   1.80\n\nTOTAL & <all>")));
}

TEST_F(ReportPrint, APdfIsWritten) {
  const QString file = QString::fromStdString(host("report.pdf"));
  EXPECT_TRUE(print({QStringLiteral("ALL PLU"), &model, {}, {}}, file));
  QFile pdf{file};
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_TRUE(pdf.readAll().startsWith("%PDF-"));
}

TEST_F(ReportPrint, AFileThatCannotBeWrittenIsTold) {
  EXPECT_FALSE(print({QStringLiteral("ALL PLU"), &model, {}, {}}, QString::fromStdString(host("missing/report.pdf"))));
}

}  // namespace
}  // namespace ecr::test
