#include "widgets/help.h"

#include <QDesktopServices>
#include <QDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QTextBrowser>
#include <QUrl>

#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "lang/language.h"
#include "widgets/manual.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

/// The page of this name, the first page of the manual where there is none.
QString page_path(const QString& page) {
  const QString path = manual_file(page + QStringLiteral(".html"));
  return QFileInfo::exists(path) ? path : manual_file(QStringLiteral("index.html"));
}

/// A page of the manual beside its contents. While something stands in the search field, the pages that hold it stand
/// in place of the contents.
class HelpWindow : public QDialog {
 public:
  HelpWindow(QWidget* over, const QString& path) : QDialog{over} {
    setObjectName(QStringLiteral("Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(980, 680);
    search_ = new QLineEdit{this};
    search_->setObjectName(QStringLiteral("HelpSearch"));
    search_->setPlaceholderText(manual_word(QStringLiteral("search"), QStringLiteral("Search the manual")));
    search_->setAccessibleName(search_->placeholderText());
    search_->setClearButtonEnabled(true);
    contents_ = make_browser(QStringLiteral("HelpContents"));
    contents_->setOpenLinks(false);
    page_ = make_browser(QStringLiteral("HelpPage"));
    page_->setOpenLinks(false);
    connect(page_, &QTextBrowser::sourceChanged, this, [this] { setWindowTitle(page_->documentTitle()); });
    for (auto* browser : {contents_, page_}) {
      connect(browser, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) { show_page(url.fileName()); });
    }
    connect(search_, &QLineEdit::textChanged, this, [this] { list_found(); });
    connect(search_, &QLineEdit::returnPressed, this, [this] { show_first_found(); });
    page_->setSource(QUrl::fromLocalFile(path));
    setWindowTitle(page_->documentTitle());
    list_found();
    auto* layout = new QGridLayout{this};
    layout->addWidget(search_, 0, 0);
    layout->addWidget(contents_, 1, 0);
    layout->addWidget(page_, 0, 1, 2, 1);
    search_->setFixedWidth(250);
    contents_->setFixedWidth(250);
    layout->setColumnStretch(1, 1);
    page_->setFocus();
  }

 private:
  QTextBrowser* make_browser(const QString& name) {
    auto* browser = new QTextBrowser{this};
    browser->setObjectName(name);
    browser->setOpenExternalLinks(false);
    return browser;
  }

  void show_page(const QString& file) {
    page_->setSource(QUrl::fromLocalFile(manual_file(file)));
    const QString word = search_->text().simplified().section(u' ', 0, 0);
    // The first place is marked, so that it is seen.
    if (!word.isEmpty()) page_->find(word);
  }

  void list_found() {
    if (search_->text().simplified().isEmpty()) {
      contents_->setSource(QUrl::fromLocalFile(manual_file(QStringLiteral("contents.html"))));
      return;
    }
    if (pages_.empty()) pages_ = manual_pages();
    QString list;
    for (const ManualPage& page : pages_with(pages_, search_->text())) {
      list += QStringLiteral("<p><a href=\"%1\">%2</a></p>").arg(page.file, page.title.toHtmlEscaped());
    }
    if (list.isEmpty()) list = manual_word(QStringLiteral("nothing-found"), QStringLiteral("No page has this."));
    contents_->setHtml(list);
  }

  void show_first_found() {
    const std::vector<ManualPage> found = pages_with(pages_, search_->text());
    if (!found.empty()) show_page(found.front().file);
  }

  QLineEdit* search_;
  QTextBrowser* contents_;
  QTextBrowser* page_;
  std::vector<ManualPage> pages_;
};

}  // namespace

void open_help(QWidget* over, const QString& page) {
  const QString system_file = path_for_toolkit(host_path(Global::PathHelp)) + QString::fromUtf8(HelpFile.c_str());
  if (!HelpFile.empty() && QFileInfo::exists(system_file)) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(system_file));
    return;
  }
  const QString path = page_path(page);
  if (!QFileInfo::exists(path)) {
    memo_log("Help: no manual in " + Global::PathHelp);
    return;
  }
  (new HelpWindow{over, path})->show();
}

}  // namespace ecr
