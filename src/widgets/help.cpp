#include "widgets/help.h"

#include <QDesktopServices>
#include <QDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QTextBrowser>
#include <QUrl>

#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "lang/language.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

/// A file of the manual: in the chosen language, or in English where that one has it not.
QString help_path(const QString& file) {
  const QString path = path_for_toolkit(host_path(Global::PathHelp)) + file;
  if (QFileInfo::exists(path)) return path;
  return path_for_toolkit(host_path(Global::PathApp + "help\\eng\\")) + file;
}

/// The page of this name, the first page of the manual where there is none.
QString page_path(const QString& page) {
  const QString path = help_path(page + QStringLiteral(".html"));
  return QFileInfo::exists(path) ? path : help_path(QStringLiteral("index.html"));
}

class HelpWindow : public QDialog {
 public:
  HelpWindow(QWidget* over, const QString& path) : QDialog{over} {
    setObjectName(QStringLiteral("Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(900, 640);
    auto* layout = new QHBoxLayout{this};
    auto* contents = make_browser(QStringLiteral("HelpContents"));
    contents->setSource(QUrl::fromLocalFile(help_path(QStringLiteral("contents.html"))));
    contents->setOpenLinks(false);
    contents->setFixedWidth(230);
    auto* page = make_browser(QStringLiteral("HelpPage"));
    connect(page, &QTextBrowser::sourceChanged, this, [this, page] { setWindowTitle(page->documentTitle()); });
    connect(contents, &QTextBrowser::anchorClicked, page, [page](const QUrl& url) { page->setSource(url); });
    page->setSource(QUrl::fromLocalFile(path));
    setWindowTitle(page->documentTitle());
    layout->addWidget(contents);
    layout->addWidget(page, 1);
    page->setFocus();
  }

 private:
  QTextBrowser* make_browser(const QString& name) {
    auto* browser = new QTextBrowser{this};
    browser->setObjectName(name);
    browser->setOpenExternalLinks(false);
    return browser;
  }
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
