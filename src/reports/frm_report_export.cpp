#include "reports/frm_report_export.h"

#include <vector>

#include <QGridLayout>
#include <QHBoxLayout>

#include "core/global.h"
#include "core/model.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "link/report_rows.h"
#include "reports/export_option.h"
#include "reports/export_run.h"
#include "reports/frm_report_view.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"
#include "widgets/wait_panel.h"

namespace ecr {

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
  for (const Report& report : exported_reports) {
    auto* check = new QCheckBox{this};
    check->setObjectName(member_name("Chk_Report", report.number));
    Chk_Report[report.number] = check;
    if (!report.caption_key) {
      Captions::fix(*check, report.caption);
      check->hide();
      continue;
    }
    captions_.add(*check, *report.caption_key, report.caption);
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

void FrmReportExport::load() {
  frame_.load_band();
  captions_.lay();
  guarded("FrmReportExport Form_load: ", [this] {
    Txt_MPS_Min->show_text(QStringLiteral("0"));
    Read_ExportOption();
    for (const auto& [number, box] : Chk_Report) {
      box->setChecked(ExportOption[number] == 1);
      if (is_on_chosen_model(report_numbered(number)->models)) continue;
      box->setChecked(false);
      box->setEnabled(false);
    }
    shell().pointer(Pointer::normal);
  });
}

void FrmReportExport::save() const {
  for (const auto& [number, box] : Chk_Report) ExportOption[number] = box->isChecked() ? 1 : 0;
  Write_ExportOption();
}

void FrmReportExport::run_export() {
  std::vector<std::uint8_t> numbers;
  for (const auto& [number, box] : Chk_Report) {
    if (box->isChecked() && box->isEnabled()) numbers.push_back(number);
  }
  L_Progress->clear();
  const BusyPointer busy;
  // After the reports the release follows.
  WaitSteps steps{static_cast<int>(numbers.size()) + 1};
  const std::vector<CsvOutcome> failed = export_reports(
      numbers, lowest_quantity_of(page_bytes(Txt_MPS_Min->text())), [this, &steps](std::uint8_t number) {
        const auto box = Chk_Report.find(number);
        steps.next(box == Chk_Report.end() ? QString{} : box->second->text());
      });
  if (failed.empty()) return;
  QStringList files;
  for (const CsvOutcome& outcome : failed) files.append(screen_text(outcome.file));
  L_Progress->setText(own_words(OwnText::reports_not_written).arg(files.join(QStringLiteral(", "))));
}

}  // namespace ecr
