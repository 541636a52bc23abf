#include "editors/setting/frm_print_mode.h"

#include <algorithm>
#include <span>
#include <vector>

#include <QGridLayout>
#include <QVBoxLayout>

#include "editors/setting/print_mode_rows.h"
#include "image/prg_mode.h"

namespace ecr {
namespace {

struct Tab {
  Key key{};
  const char* built_in = "";
};

// The third one has the fifth key; the keys of tabs 3 and 4 caption nothing.
constexpr Tab outer_tabs[] = {{Key::FRM_PRINT_MODE_TAB_PRINT_TAB1, "ON RECEIPT"},
                              {Key::FRM_PRINT_MODE_TAB_PRINT_TAB2, "ON INVOICE"},
                              {Key::FRM_PRINT_MODE_TAB_PRINT_TAB5, "ON REPORT/PRG"}};
constexpr Tab receipt_tabs[] = {{Key::FRM_PRINT_MODE_TAB_PRINT_RECEIPT_TAB1, "Tax Details"},
                                {Key::FRM_PRINT_MODE_TAB_PRINT_RECEIPT_TAB2, "Header/Footer"},
                                {Key::FRM_PRINT_MODE_TAB_PRINT_RECEIPT_TAB3, "Item Selection"},
                                {Key::FRM_PRINT_MODE_TAB_PRINT_RECEIPT_TAB4, "Format"}};

/// The rows of one page: four pages of the inner tabs, then the two other ones of the outer tabs.
struct Page {
  std::size_t rows;
  std::string_view first;  ///< the list that the page begins with
};
constexpr std::array<Page, 6> pages = {{{11, "Cmb_TaxRatePrint"},
                                        {3, "Cmb_GraphicHeaderPrintOnReceipt"},
                                        {8, "Cmb_MultipleReceipt"},
                                        {3, "Cmb_TaxDetailsPrintPosition"},
                                        {14, "Cmb_InvoicePrint"},
                                        {8, "Cmb_X_ZReportCompressed"}}};
constexpr std::size_t invoice_page = 4;
constexpr std::size_t longest_column = 8;

constexpr std::span<const OptionRow> rows_of(std::size_t page) {
  std::size_t first = 0;
  for (std::size_t i = 0; i < page; ++i) first += pages.at(i).rows;
  return std::span{setting::print_mode_rows}.subspan(first, pages.at(page).rows);
}

consteval bool pages_hold_all_rows() {
  std::size_t rows = 0;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (rows_of(i).front().control != pages.at(i).first) return false;
    rows += pages.at(i).rows;
  }
  return rows == std::size(setting::print_mode_rows);
}
static_assert(pages_hold_all_rows());

/// A page of its own on a tab.
QWidget* add_page(QTabWidget& tabs, const Tab& tab) {
  auto* page = new QWidget{&tabs};
  tabs.addTab(page, caption_text(tab.key, tab.built_in));
  return page;
}

void lay(QTabWidget& tabs, std::span<const Tab> captions) {
  for (std::size_t i = 0; i < captions.size(); ++i) {
    tabs.setTabText(static_cast<int>(i), caption_text(captions[i].key, captions[i].built_in));
  }
  tabs.setCurrentIndex(0);
}

// The rows of the invoice page: four of the invoice, four of the review and one of what the proforma prints, four of
// the new balance and one of what it prints.
constexpr std::size_t of_invoice = 0;
constexpr std::size_t of_review = 4;
constexpr std::size_t on_proforma = 8;
constexpr std::size_t of_new_balance = 9;
constexpr std::size_t on_new_balance = 13;
constexpr std::size_t in_group = 4;

/// Invoice beside new balance, below them the review beside what the two others print. The two long captions have two
/// lines of the grid each.
QGridLayout* invoice_block(const OptionLists& lists) {
  constexpr int gap_line = in_group;
  constexpr int lower = gap_line + 1;
  constexpr int right = 3;
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(10);
  lists.lay_out(*grid, 0, 0, of_invoice, in_group);
  lists.lay_out(*grid, lower, 0, of_review, in_group);
  lists.lay_out(*grid, 0, right, of_new_balance, in_group);
  int line = lower;
  for (const std::size_t row : {on_proforma, on_new_balance}) {
    const std::string_view control = rows_of(invoice_page)[row].control;
    lists.label(control)->setWordWrap(true);
    grid->addWidget(lists.label(control), line, right, 2, 1);
    grid->addWidget(lists.list(control), line, right + 1, 2, 1);
    line += 2;
  }
  grid->setRowMinimumHeight(gap_line, 14);
  grid->setColumnMinimumWidth(2, 24);
  for (const int column : {1, right, right + 1}) grid->setColumnStretch(column, 2);
  return grid;
}

/// The lists of a page as the eye goes over them.
std::vector<ChoiceList*> lists_in_order(const OptionLists& page, std::size_t number) {
  std::vector<ChoiceList*> lists = page.lists();
  // What the proforma prints stands below the new balance.
  if (number == invoice_page) {
    const auto at = [&lists](std::size_t row) { return lists.begin() + static_cast<std::ptrdiff_t>(row); };
    std::rotate(at(on_proforma), at(of_new_balance), at(on_new_balance));
  }
  return lists;
}

}  // namespace

FrmPrintMode::FrmPrintMode()
    : Screen{QStringLiteral("FrmPrintMode")},
      frame_{*this, ScreenFrame::Corner::none},
      Tab_Print{new QTabWidget{this}} {
  frame_.captions.add(*this, Key::FRM_PRINT_MODE_TITLE, "Print MODE");
  Tab_Print->setObjectName(QStringLiteral("Tab_Print"));
  frame_.body->addWidget(Tab_Print, 1);
  add_pages();
  order_tabs();
  frame_.log_prefixes("FrmPrintMode form_load: ", "FrmPrintMode Salva: ");
  frame_.on_save([this] {
    for (const auto& page : pages_) page->save();
    frame_.write_file();
  });
}

void FrmPrintMode::add_pages() {
  QWidget* receipt = add_page(*Tab_Print, outer_tabs[0]);
  Tab_PrintReceipt = new QTabWidget{receipt};
  Tab_PrintReceipt->setObjectName(QStringLiteral("Tab_PrintReceipt"));
  auto* around = new QVBoxLayout{receipt};
  around->setContentsMargins(0, 6, 0, 0);
  around->addWidget(Tab_PrintReceipt);
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    QWidget* page = i < invoice_page ? add_page(*Tab_PrintReceipt, receipt_tabs[i])
                                     : add_page(*Tab_Print, outer_tabs[i - invoice_page + 1]);
    auto* body = new QVBoxLayout{page};
    body->setContentsMargins(0, 14, 0, 0);
    const OptionLists& lists = pages_.at(i).emplace(*page, frame_.captions, rows_of(i));
    body->addLayout(i == invoice_page ? invoice_block(lists) : lists.block(pages.at(i).rows > longest_column ? 2 : 1));
    body->addStretch(1);
  }
}

void FrmPrintMode::order_tabs() {
  std::vector<QWidget*> order = {Tab_Print, Tab_PrintReceipt};
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    for (ChoiceList* list : lists_in_order(*pages_.at(i), i)) order.push_back(list);
  }
  frame_.tab_through(std::move(order));
}

void FrmPrintMode::load() {
  frame_.load([this] {
    frame_.top.L_Titolo->setText(windowTitle());
    lay(*Tab_Print, outer_tabs);
    lay(*Tab_PrintReceipt, receipt_tabs);
    Tab_Print->setAccessibleName(windowTitle());
    Tab_PrintReceipt->setAccessibleName(Tab_Print->tabText(0));
    for (const auto& page : pages_) page->load();
  });
}

}  // namespace ecr
