#include "reports/frm_report_view.h"

#include <algorithm>
#include <utility>

#include <QFileDialog>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "link/report_rows.h"
#include "reports/report_print.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr std::string_view csv_ending = ".csv";

const CsvExport* chosen(const std::vector<CsvExport>& exports, int place) {
  return place < 0 || static_cast<std::size_t>(place) >= exports.size() ? nullptr
                                                                        : &exports[static_cast<std::size_t>(place)];
}

}  // namespace

FrmReportView::FrmReportView()
    : Screen{QStringLiteral("FrmReportView")},
      frame_{*this, ScreenFrame::Corner::none},
      Cmb_File{new ChoiceList{QStringLiteral("Cmb_File"), this, ChoiceList::Typing::finds_entries}},
      Cmb_Export{new ChoiceList{QStringLiteral("Cmb_Export"), this}},
      E_Filter{new Field{QStringLiteral("E_Filter"), this}},
      Chk_Figures{new QCheckBox{this}},
      L_Rows{make_label(QStringLiteral("L_Rows"), this)},
      Tabs{new QTabWidget{this}},
      Fg_Report{new QTableView},
      Fg_Sums{new QTableView},
      P_Charts{new ChartView{QStringLiteral("P_Charts"), nullptr}},
      T_Receipt{new QPlainTextEdit},
      L_Receipt{make_label(QStringLiteral("L_Receipt"), this)},
      C_Previous{new CommandButton{QStringLiteral("C_Previous"), this}},
      C_Next{new CommandButton{QStringLiteral("C_Next"), this}},
      C_Annulla{new CommandButton{QStringLiteral("C_Annulla"), this}},
      C_Pdf{new CommandButton{QStringLiteral("C_Pdf"), this}},
      C_Print{new CommandButton{QStringLiteral("C_Print"), this}} {
  L_File = make_label(QStringLiteral("L_File"), this, Cmb_File);
  L_Export = make_label(QStringLiteral("L_Export"), this, Cmb_Export);
  L_Filter = make_label(QStringLiteral("L_Filter"), this, E_Filter);
  Chk_Figures->setObjectName(QStringLiteral("Chk_Figures"));
  Tabs->setObjectName(QStringLiteral("Tabs"));
  Tabs->setAccessibleName(own_words(OwnText::ways_to_look));
  set_caption(*this, own_words(OwnText::report_viewer));
  set_caption(*frame_.L_Titolo, own_words(OwnText::report_viewer));
  set_caption(*L_File, own_words(OwnText::report));
  set_caption(*L_Export, own_words(OwnText::export_of_file));
  set_caption(*L_Filter, own_words(OwnText::find));
  set_caption(*Chk_Figures, own_words(OwnText::only_rows_with_figures));
  set_caption(*C_Previous, own_words(OwnText::previous));
  set_caption(*C_Next, own_words(OwnText::next));
  captions_.add(*C_Annulla, Key::FRM_ALL_C_ANNULLA, "Back");
  Captions::fix(*C_Pdf, "PDF...");
  set_caption(*C_Print, own_words(OwnText::print));
  make_hint(*L_Rows);
  make_hint(*L_Receipt);

  set_up_table();
  T_Receipt->setObjectName(QStringLiteral("T_Receipt"));
  T_Receipt->setAccessibleName(own_words(OwnText::the_receipt));
  T_Receipt->setReadOnly(true);
  QFont paper = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  paper.setPointSizeF(11);
  T_Receipt->setFont(paper);
  T_Receipt->document()->setDocumentMargin(14);
  lay_out();

  Cmb_File->on_click([this] { show_file(); });
  Cmb_Export->on_click([this] { show_export(); });
  E_Filter->on_change([this] { apply_wishes(); });
  connect(Chk_Figures, &QCheckBox::toggled, this, [this] { apply_wishes(); });
  C_Previous->on_click([this] { page_to(receipt_ - 1); });
  C_Next->on_click([this] { page_to(receipt_ + 1); });
  C_Annulla->on_click([this] { unload(); });
  C_Pdf->on_click([this] { save_pdf(); });
  C_Print->on_click([this] { print(); });
}

void FrmReportView::set_up_table() {
  const int row_height = Fg_Report->fontMetrics().height() + 10;
  Fg_Report->setModel(&model_);
  Fg_Sums->setModel(&sums_);
  for (QTableView* view : {Fg_Report, Fg_Sums}) {
    view->setShowGrid(false);
    view->setWordWrap(false);
    view->setTabKeyNavigation(false);
    view->verticalHeader()->hide();
    // One height for all rows: asking each of thousands would cost time.
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(row_height);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  }
  Fg_Report->setObjectName(QStringLiteral("Fg_Report"));
  Fg_Report->setAccessibleName(own_words(OwnText::report_as_table));
  Fg_Report->setSelectionBehavior(QAbstractItemView::SelectRows);
  Fg_Report->setSelectionMode(QAbstractItemView::SingleSelection);
  Fg_Report->setAlternatingRowColors(true);
  Fg_Report->horizontalHeader()->setHighlightSections(false);
  Fg_Report->horizontalHeader()->setResizeContentsPrecision(64);
  // What a click on a heading does, for the hands on the keyboard: by the column of the current cell.
  for (const auto& [key, order] :
       {std::pair{Qt::Key_Down, Qt::AscendingOrder}, std::pair{Qt::Key_Up, Qt::DescendingOrder}}) {
    auto* shortcut = new QShortcut{QKeySequence{Qt::ALT | key}, Fg_Report};
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, sorted = order] {
      const int column = std::max(0, Fg_Report->currentIndex().column());
      Fg_Report->sortByColumn(column, sorted);
      Fg_Report->setCurrentIndex(model_.index(0, column));
    });
  }
  // The sums stay in sight below the rows.
  QFont bold = Fg_Sums->font();
  bold.setBold(true);
  Fg_Sums->setFont(bold);
  Fg_Sums->setObjectName(QStringLiteral("Fg_Sums"));
  Fg_Sums->setAccessibleName(own_words(OwnText::sums_of_rows));
  Fg_Sums->setFocusPolicy(Qt::NoFocus);
  Fg_Sums->setSelectionMode(QAbstractItemView::NoSelection);
  Fg_Sums->horizontalHeader()->hide();
  Fg_Sums->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Fg_Sums->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Fg_Sums->setFixedHeight(row_height + 2 * Fg_Sums->frameWidth() + 2);
  connect(Fg_Report->horizontalHeader(), &QHeaderView::sectionResized, Fg_Sums,
          [this](int column, int, int width) { Fg_Sums->setColumnWidth(column, width); });
  connect(Fg_Report->horizontalScrollBar(), &QScrollBar::valueChanged, Fg_Sums->horizontalScrollBar(),
          &QScrollBar::setValue);
}

void FrmReportView::lay_out() {
  auto* choices = new QGridLayout;
  choices->setHorizontalSpacing(12);
  choices->setVerticalSpacing(10);
  choices->setColumnStretch(1, 2);
  choices->setColumnStretch(3, 1);
  choices->addWidget(L_File, 0, 0);
  choices->addWidget(Cmb_File, 0, 1);
  choices->addWidget(L_Export, 0, 2);
  choices->addWidget(Cmb_Export, 0, 3);
  choices->addWidget(L_Filter, 1, 0);
  choices->addWidget(E_Filter, 1, 1);
  choices->addWidget(Chk_Figures, 1, 2, 1, 2, Qt::AlignLeft);
  frame_.body->addLayout(choices);

  auto* table = new QWidget;
  table->setObjectName(QStringLiteral("F_Table"));
  auto* rows = new QVBoxLayout{table};
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(4);
  rows->addWidget(Fg_Report, 1);
  rows->addWidget(Fg_Sums);
  Tabs->addTab(table, own_words(OwnText::table));
  auto* pictures = new QScrollArea;
  pictures->setObjectName(QStringLiteral("S_Charts"));
  pictures->setAccessibleName(own_words(OwnText::report_as_pictures));
  pictures->setWidgetResizable(true);
  pictures->setFrameShape(QFrame::NoFrame);
  pictures->setWidget(P_Charts);
  Tabs->addTab(pictures, own_words(OwnText::pictures));
  auto* receipt = new QWidget;
  receipt->setObjectName(QStringLiteral("F_Receipt"));
  auto* paper = new QVBoxLayout{receipt};
  auto* pages = new QHBoxLayout;
  pages->setSpacing(10);
  pages->addWidget(C_Previous);
  pages->addWidget(C_Next);
  pages->addWidget(L_Receipt);
  pages->addStretch(1);
  paper->addLayout(pages);
  // As wide as the paper of a receipt, with a little room.
  constexpr int characters = 34;
  T_Receipt->setFixedWidth(T_Receipt->fontMetrics().averageCharWidth() * characters);
  paper->addWidget(T_Receipt, 1, Qt::AlignHCenter);
  Tabs->addTab(receipt, own_words(OwnText::receipts));
  frame_.body->addWidget(Tabs, 1);

  auto* bar = new QHBoxLayout;
  bar->setSpacing(10);
  bar->addWidget(C_Annulla);
  bar->addSpacing(10);
  bar->addWidget(L_Rows);
  bar->addStretch(1);
  bar->addWidget(C_Pdf);
  bar->addWidget(C_Print);
  frame_.body->addLayout(bar);
  set_tab_chain({Cmb_File, Cmb_Export, E_Filter, Chk_Figures, Tabs, Fg_Report, pictures, C_Previous, C_Next, T_Receipt,
                 C_Annulla, C_Pdf, C_Print});
}

void FrmReportView::load() {
  frame_.load_band();
  captions_.lay();
  guarded("FrmReportView Form_load: ", [this] {
    Chk_Figures->setChecked(true);
    list_files();
    show_file();
  });
}

void FrmReportView::list_files() {
  files_ = files_matching(Global::PathReport, "*" + std::string{csv_ending});
  // The release leaves an empty file behind each export.
  std::erase_if(files_, [](const std::string& name) { return FileReader{Global::PathReport + name}.size() == 0; });
  QStringList entries;
  for (const std::string& name : files_) {
    entries << field_text(name.substr(0, name.size() - csv_ending.size()));
  }
  Cmb_File->fill(entries);
  if (!entries.isEmpty()) Cmb_File->setCurrentIndex(0);
}

QString FrmReportView::file_name() const {
  return Cmb_File->text();
}

void FrmReportView::show_file() {
  exports_.clear();
  number_ = 0;
  if (const int place = Cmb_File->currentIndex(); place >= 0 && static_cast<std::size_t>(place) < files_.size()) {
    const std::string& name = files_[static_cast<std::size_t>(place)];
    number_ = report_of_file(name);
    std::string bytes;
    const Fault fault = read_file(Global::PathReport + name, bytes);
    if (fault.stands()) log_fault("FrmReportView " + name + ": ", fault);
    exports_ = read_csv(bytes, is_journal(number_));
  }
  QStringList entries;
  for (std::size_t i = 0; i < exports_.size(); ++i) {
    entries << own_words(OwnText::one_of_several).arg(i + 1).arg(exports_.size());
  }
  Cmb_Export->fill(entries);
  // The last one is what was read from the register last.
  Cmb_Export->setCurrentIndex(static_cast<int>(entries.size()) - 1);
  show_export();
}

void FrmReportView::show_export() {
  const CsvExport* exported = chosen(exports_, Cmb_Export->currentIndex());
  Fg_Report->setSortingEnabled(false);
  const bool journal = is_journal(number_) && exported != nullptr;
  model_.show(exported == nullptr || journal ? ReportTable{} : report_table(number_, *exported));
  Fg_Report->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  Fg_Report->setSortingEnabled(true);
  P_Charts->show_charts(exported == nullptr ? std::vector<Chart>{} : report_charts(number_, *exported));
  // A tab that goes hands its place to whichever is beside it.
  const int in_front = Tabs->currentIndex();
  Tabs->setTabVisible(table_tab, !journal);
  Tabs->setTabVisible(picture_tab, !P_Charts->charts().empty());
  Tabs->setTabVisible(receipt_tab, journal);
  if (!Tabs->isTabVisible(in_front)) Tabs->setCurrentIndex(journal ? receipt_tab : table_tab);
  Chk_Figures->setVisible(!journal);
  apply_wishes();
  Fg_Report->resizeColumnsToContents();
  // A sum can be wider than everything above it.
  for (int column = 0; column < model_.columnCount(); ++column) {
    const int sum = QFontMetrics{Fg_Sums->font()}.horizontalAdvance(model_.sum(column)) + 24;
    Fg_Report->setColumnWidth(column, std::max(Fg_Report->columnWidth(column), sum));
    Fg_Sums->setColumnWidth(column, Fg_Report->columnWidth(column));
  }
}

void FrmReportView::apply_wishes() {
  TableWishes wishes = model_.wishes();
  wishes.filter = page_bytes(E_Filter->text());
  wishes.only_with_figures = Chk_Figures->isChecked();
  model_.wish(wishes);
  Fg_Sums->setVisible(model_.has_sums());
  show_receipts();
  const bool anything = !exports_.empty();
  C_Print->setEnabled(anything);
  C_Pdf->setEnabled(anything);
  if (files_.empty()) {
    L_Rows->setText(own_words(OwnText::nothing_exported));
  } else if (is_journal(number_)) {
    L_Rows->setText({});
  } else {
    L_Rows->setText(own_words(OwnText::rows_shown).arg(model_.rows_shown()).arg(model_.table().rows.size()));
  }
}

void FrmReportView::show_receipts() {
  receipts_.clear();
  const CsvExport* exported = chosen(exports_, Cmb_Export->currentIndex());
  if (is_journal(number_) && exported != nullptr) receipts_ = receipts_with(*exported, page_bytes(E_Filter->text()));
  page_to(0);
}

void FrmReportView::page_to(int receipt) {
  const int count = static_cast<int>(receipts_.size());
  receipt_ = std::clamp(receipt, 0, std::max(0, count - 1));
  C_Previous->setEnabled(receipt_ > 0);
  C_Next->setEnabled(receipt_ + 1 < count);
  const CsvExport* exported = chosen(exports_, Cmb_Export->currentIndex());
  if (count == 0 || exported == nullptr) {
    T_Receipt->clear();
    L_Receipt->setText(E_Filter->text().isEmpty() ? own_words(OwnText::no_receipt) : own_words(OwnText::not_found));
    return;
  }
  T_Receipt->setPlainText(screen_text(receipt_text(*exported, receipts_[static_cast<std::size_t>(receipt_)])));
  L_Receipt->setText(own_words(OwnText::receipt_of_several).arg(receipt_ + 1).arg(count));
}

PrintedReport FrmReportView::printed() const {
  PrintedReport report;
  report.title = file_name();
  const CsvExport* exported = chosen(exports_, Cmb_Export->currentIndex());
  if (is_journal(number_) && exported != nullptr) {
    std::string text;
    for (const Receipt& receipt : receipts_) text += receipt_text(*exported, receipt) + "\n";
    report.lines = screen_text(text);
  } else if (Tabs->currentIndex() == picture_tab) {
    report.charts = P_Charts->charts();
  } else {
    report.table = &model_;
  }
  return report;
}

void FrmReportView::print() {
  QPrinter printer{QPrinter::HighResolution};
  printer.setDocName(file_name());
  QPrintDialog dialog{&printer, this};
  if (dialog.exec() != QDialog::Accepted) return;
  const BusyPointer busy;
  if (!print_report(printer, printed())) tell(BoxKind::critical, own_bytes(OwnText::not_printed));
}

void FrmReportView::save_pdf() {
  const QString offered = path_for_toolkit(host_path(Global::PathReport)) + file_name() + QStringLiteral(".pdf");
  const QString file =
      QFileDialog::getSaveFileName(this, own_words(OwnText::save_as_pdf), offered, QStringLiteral("PDF (*.pdf)"));
  if (file.isEmpty()) return;
  const BusyPointer busy;
  QPrinter printer{QPrinter::HighResolution};
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setDocName(file_name());
  printer.setOutputFileName(file);
  if (!print_report(printer, printed())) tell(BoxKind::critical, own_bytes(OwnText::not_written));
}

}  // namespace ecr
