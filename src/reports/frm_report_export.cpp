#include "reports/frm_report_export.h"

#include <optional>
#include <vector>

#include <QGridLayout>
#include <QHBoxLayout>

#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "image/side_files.h"
#include "link/report_fetch.h"
#include "reports/export_run.h"
#include "reports/frm_report_view.h"
#include "reports/layout.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"
#include "widgets/wait_panel.h"

namespace ecr {
namespace {

constexpr std::uint8_t open_tables = 15;

struct ReportRow {
  std::uint8_t number;
  const char* built_in;
  std::optional<Key> key;  ///< without one the box is never on show: a tick in the file alone asks for the report
};
constexpr ReportRow report_rows[] = {
    {3, "Cash In Drawer Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_3},
    {4, "Financial (Z1) Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_4},
    {5, "Range Department Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_5},
    {6, "Department Group Report", std::nullopt},
    {7, "All PLU Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_7},
    {8, "Range PLU Report", std::nullopt},
    {9, "All Normal CLERK Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_9},
    {10, "All Training CLERK Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_10},
    {11, "Normal + Training CLERK Report", std::nullopt},
    {12, "Time Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_12},
    {13, "Training Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_13},
    {14, "Financial (Z2) Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_14},
    {15, "Open Table Report", std::nullopt},
    {16, "Full Report for EJ", Key::FRM_REPORT_EXPORT_CHK_REPORT_16},
    {17, "Oldest Report for EJ", std::nullopt},
    {18, "Lastest Report for EJ", std::nullopt},
    {19, "Daily Report for EJ", std::nullopt},
    {20, "All PLU Stock Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_20},
    {21, "Mini PLU Stock Report", Key::FRM_REPORT_EXPORT_CHK_REPORT_21},
};

}  // namespace

FrmReportExport::FrmReportExport()
    : Screen{QStringLiteral("FrmReportExport")},
      frame_{*this, ScreenFrame::Corner::picture},
      Txt_MPS_Min{new Field{QStringLiteral("Txt_MPS_Min"), this}},
      L_Progress{make_label(QStringLiteral("L_Progress"), this)},
      C_Annulla{new CommandButton{QStringLiteral("C_Annulla"), this}},
      C_View{new CommandButton{QStringLiteral("C_View"), this}},
      C_Salva{new CommandButton{QStringLiteral("C_Salva"), this}},
      C_Export{new CommandButton{QStringLiteral("C_Export"), this}} {
  captions_.add(*this, Key::FRM_REPORT_EXPORT_TITLE, "Report Export");
  captions_.add(*frame_.L_Titolo, Key::FRM_REPORT_EXPORT_L_TITOLO, "REPORT EXPORT");
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(32);
  grid->setVerticalSpacing(14);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  int place = 0;
  for (const ReportRow& row : report_rows) {
    auto* check = new QCheckBox{this};
    check->setObjectName(member_name("Chk_Report", row.number));
    Chk_Report[static_cast<std::size_t>(row.number - first_report)] = check;
    if (!row.key) {
      Captions::fix(*check, row.built_in);
      check->hide();
      continue;
    }
    captions_.add(*check, *row.key, row.built_in);
    // Two columns of six, read downwards.
    constexpr int rows_of_grid = 6;
    grid->addWidget(check, place % rows_of_grid, place / rows_of_grid, Qt::AlignLeft);
    ++place;
  }
  L_MPS_Level = make_label(QStringLiteral("L_MPS_Level"), this, Txt_MPS_Min);
  L_MPS_Min = make_label(QStringLiteral("L_MPS_Min"), this);
  make_hint(*L_MPS_Min);
  captions_.add(*L_MPS_Level, Key::FRM_REPORT_EXPORT_L_MPS_LEVEL, "Min. Qty Level");
  captions_.add(*L_MPS_Min, Key::MSG_MAX_9999, "(max. 9999)");
  Txt_MPS_Min->let_in(Field::Keys::digits);
  Txt_MPS_Min->setAlignment(Qt::AlignRight);
  Txt_MPS_Min->setFixedWidth(110);
  Txt_MPS_Min->on_change([this] { ecr::Txt_MPS_Min = page_bytes(Txt_MPS_Min->text()); });
  // Below the box of the report that it belongs to.
  auto* level = new QHBoxLayout;
  level->setContentsMargins(26, 0, 0, 0);
  level->setSpacing(12);
  level->addWidget(L_MPS_Level);
  level->addWidget(Txt_MPS_Min);
  level->addWidget(L_MPS_Min);
  level->addStretch(1);
  grid->addLayout(level, 6, 1);
  frame_.body->addSpacing(8);
  L_Progress->setTextFormat(Qt::PlainText);
  L_Progress->setWordWrap(true);
  frame_.body->addLayout(grid);
  frame_.body->addWidget(L_Progress);
  frame_.body->addStretch(1);

  captions_.add(*C_Annulla, Key::FRM_ALL_C_ANNULLA, "Back");
  captions_.add(*C_Salva, Key::FRM_REPORT_EXPORT_C_SALVA, "Save Setting");
  captions_.add(*C_Export, Key::FRM_REPORT_EXPORT_C_EXPORT, "Export");
  set_caption(*C_View, own_words(OwnText::view));
  C_Export->emphasise();
  C_Annulla->on_click([this] { unload(); });
  C_View->on_click([this] { open(new FrmReportView); });
  C_Salva->on_click([this] { guarded("FrmReportExport Salva: ", [this] { save(); }); });
  C_Export->on_click([this] { run_export(); });
  auto* bar = new QHBoxLayout;
  bar->setSpacing(10);
  bar->addWidget(C_Annulla);
  bar->addStretch(1);
  bar->addWidget(C_View);
  bar->addWidget(C_Salva);
  bar->addWidget(C_Export);
  frame_.body->addLayout(bar);
}

QCheckBox* FrmReportExport::box(std::uint8_t number) const {
  return Chk_Report[static_cast<std::size_t>(number - first_report)];
}

void FrmReportExport::load() {
  frame_.load_band();
  captions_.lay();
  guarded("FrmReportExport Form_load: ", [this] {
    Txt_MPS_Min->show_text(QStringLiteral("0"));
    Read_ExportOption();
    for (std::uint8_t number = first_report; number <= last_report; ++number) {
      box(number)->setChecked(ExportOption[number] == 1);
    }
    if (Global::EcrModel == Global::model_z300) {
      box(open_tables)->setChecked(false);
      box(open_tables)->setEnabled(false);
    }
    shell().pointer(Pointer::normal);
  });
}

void FrmReportExport::save() const {
  for (std::uint8_t number = first_report; number <= last_report; ++number) {
    ExportOption[number] = box(number)->isChecked() ? 1 : 0;
  }
  Write_ExportOption();
}

void FrmReportExport::run_export() {
  std::vector<std::uint8_t> numbers;
  for (std::uint8_t number = first_report; number <= last_report; ++number) {
    if (box(number)->isChecked() && box(number)->isEnabled()) numbers.push_back(number);
  }
  L_Progress->clear();
  const BusyPointer busy;
  // Behind the reports the release follows.
  WaitSteps steps{static_cast<int>(numbers.size()) + 1};
  QStringList unwritten;
  for (const CsvOutcome& outcome : export_reports(numbers, [this, &steps](std::uint8_t number) {
         steps.next(number <= last_report ? box(number)->text() : QString{});
       })) {
    unwritten.append(screen_text(outcome.file));
  }
  if (!unwritten.isEmpty()) {
    L_Progress->setText(own_words(OwnText::reports_not_written).arg(unwritten.join(QStringLiteral(", "))));
  }
}

}  // namespace ecr
