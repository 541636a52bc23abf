#pragma once
// The CSV files of the report folder to look at: tables, pictures, receipts; to print, and as PDF.

#include <vector>

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>

#include "reports/chart_view.h"
#include "reports/receipts.h"
#include "reports/report_model.h"
#include "widgets/choice_list.h"
#include "widgets/field.h"
#include "widgets/screen.h"
#include "widgets/screen_frame.h"

class QPrinter;

namespace ecr {

struct PrintedReport;

class FrmReportView : public Screen {
  Q_OBJECT

 public:
  FrmReportView();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return Cmb_File; }

 private:
  enum Tab { table_tab, picture_tab, receipt_tab };

  void set_up_table();
  void lay_out();
  void list_files();
  void show_file();
  void show_export();
  void apply_wishes();
  void show_receipts();
  void page_to(int receipt);
  void print();
  void save_pdf();
  [[nodiscard]] PrintedReport printed() const;
  [[nodiscard]] QString file_name() const;

  ScreenFrame frame_;
  Captions captions_;
  QLabel* L_File;
  ChoiceList* Cmb_File;
  QLabel* L_Export;
  ChoiceList* Cmb_Export;
  QLabel* L_Filter;
  Field* E_Filter;
  QCheckBox* Chk_Figures;
  QLabel* L_Rows;
  QTabWidget* Tabs;
  QTableView* Fg_Report;
  QTableView* Fg_Sums;
  ChartView* P_Charts;
  QPlainTextEdit* T_Receipt;
  QLabel* L_Receipt;
  CommandButton* C_Previous;
  CommandButton* C_Next;
  CommandButton* C_Annulla;
  CommandButton* C_Pdf;
  CommandButton* C_Print;

  ReportModel model_;
  SumsModel sums_{model_};
  std::vector<std::string> files_;
  std::vector<CsvExport> exports_;
  std::vector<Receipt> receipts_;
  std::uint8_t number_ = 0;
  int receipt_ = 0;
};

}  // namespace ecr
