#include "widgets/help.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QTextBrowser>
#include <QUrl>

#include "core/global.h"
#include "lang/language.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

/// Takes what would be opened in the system's viewer.
class Viewer : public QObject {
  Q_OBJECT

 public:
  Viewer() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "show"); }
  ~Viewer() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  QStringList opened;

 public slots:
  void show(const QUrl& url) { opened.append(url.toLocalFile()); }
};

class HelpTest : public ScreenTest {
 protected:
  [[nodiscard]] QDialog* window() const { return stage.findChild<QDialog*>(QStringLiteral("Help")); }
  [[nodiscard]] QTextBrowser* page() const { return stage.findChild<QTextBrowser*>(QStringLiteral("HelpPage")); }
  [[nodiscard]] static std::string html(const std::string& title) {
    return "<html><head><title>" + title + "</title></head><body>" + title + "</body></html>";
  }
  Viewer viewer;
};

TEST_F(HelpTest, AMissingManualIsLogged) {
  open_help(&stage, QStringLiteral("FrmSetup"));
  EXPECT_EQ(window(), nullptr);
  EXPECT_EQ(viewer.opened, QStringList{});
  EXPECT_EQ(log(), (std::vector<std::string>{"Help: no manual in " + Global::PathHelp}));
}

TEST_F(HelpTest, AScreensOwnPageIsShown) {
  write("help/eng/index.html", html("First page"));
  write("help/eng/contents.html", html("Contents"));
  write("help/eng/FrmSetup.html", html("The Setup menu"));
  open_help(&stage, QStringLiteral("FrmSetup"));
  ASSERT_NE(window(), nullptr);
  EXPECT_TRUE(window()->isVisible());
  EXPECT_EQ(window()->windowTitle(), QStringLiteral("The Setup menu"));
  EXPECT_EQ(page()->toPlainText().trimmed(), QStringLiteral("The Setup menu"));
  EXPECT_EQ(log(), std::vector<std::string>{});
}

TEST_F(HelpTest, AScreenWithoutAPageShowsTheFirstOne) {
  write("help/eng/index.html", html("First page"));
  write("help/eng/contents.html", html("Contents"));
  open_help(&stage, QStringLiteral("FrmSetup"));
  ASSERT_NE(window(), nullptr);
  EXPECT_EQ(window()->windowTitle(), QStringLiteral("First page"));
}

TEST_F(HelpTest, TheContentsLeadToPages) {
  write("help/eng/index.html", html("First page"));
  write("help/eng/other.html", html("Another page"));
  write("help/eng/contents.html", html("Contents"));
  open_help(&stage, QStringLiteral("index"));
  auto* contents = stage.findChild<QTextBrowser*>(QStringLiteral("HelpContents"));
  ASSERT_NE(contents, nullptr);
  emit contents->anchorClicked(QUrl::fromLocalFile(QString::fromStdString(host("help/eng/other.html"))));
  EXPECT_EQ(window()->windowTitle(), QStringLiteral("Another page"));
}

TEST_F(HelpTest, TheLanguagesHelpFileGoesToTheSystemsViewerWhereItIsThere) {
  HelpFile = "Guide (GB).chm";
  write("help/eng/index.html", html("First page"));
  write("help/eng/Guide (GB).chm", "compiled");
  open_help(&stage, QStringLiteral("FrmSetup"));
  EXPECT_EQ(viewer.opened, QStringList{QString::fromStdString(host("help/eng/Guide (GB).chm"))});
  EXPECT_EQ(window(), nullptr);
}

TEST_F(HelpTest, TheManualIsThatOfTheChosenLanguage) {
  write("help/ge/index.html", html("Erste Seite"));
  write("help/ge/contents.html", html("Inhalt"));
  Global::PathHelp = Global::PathApp + "help\\ge\\";
  open_help(&stage, QStringLiteral("FrmSetup"));
  ASSERT_NE(window(), nullptr);
  EXPECT_EQ(window()->windowTitle(), QStringLiteral("Erste Seite"));
}

class SearchTest : public HelpTest {
 protected:
  SearchTest() {
    write("help/eng/index.html", html("First page"));
    write("help/eng/contents.html", "<html><head><title>Contents</title></head><body>All pages</body></html>");
    write("help/eng/a.html",
          "<html><head><title>Departments</title></head><body>The <b>price</b> of a group</body></html>");
    write("help/eng/b.html", "<html><head><title>Price lists</title></head><body>Lists of PLUs</body></html>");
  }

  void search(const QString& text) {
    open_help(&stage, QStringLiteral("index"));
    auto* field = stage.findChild<QLineEdit*>(QStringLiteral("HelpSearch"));
    ASSERT_NE(field, nullptr);
    field->setFocus();
    let_screens_settle();
    type(text);
  }

  [[nodiscard]] QString listed() const {
    return stage.findChild<QTextBrowser*>(QStringLiteral("HelpContents"))->toPlainText().trimmed();
  }
};

TEST_F(SearchTest, PagesThatHoldTheWordsAreListedTitlesFirst) {
  search("PRICE");
  EXPECT_EQ(listed(), QStringLiteral("Price lists\nDepartments"));
}

TEST_F(SearchTest, EveryWordMustBeThere) {
  search("group price");
  EXPECT_EQ(listed(), QStringLiteral("Departments"));
}

TEST_F(SearchTest, NothingFoundIsSaid) {
  search("zebra");
  EXPECT_EQ(listed(), QStringLiteral("No page has this."));
}

TEST_F(SearchTest, WithoutWordsTheContentsStandThereAgain) {
  search("x");
  press(Qt::Key_Backspace);
  EXPECT_EQ(listed(), QStringLiteral("All pages"));
}

TEST_F(SearchTest, EnterOpensTheFirstPageAtTheWord) {
  search("group");
  press(Qt::Key_Return);
  EXPECT_EQ(window()->windowTitle(), QStringLiteral("Departments"));
  EXPECT_EQ(page()->textCursor().selectedText(), QStringLiteral("group"));
}

TEST_F(SearchTest, PagesOfTheChosenLanguageAreSearchedAndEnglishOnesWhereItHasNone) {
  write("help/ge/contents.html",
        "<html><head><meta name=\"search\" content=\"Suchen\"><meta name=\"nothing-found\" content=\"Nichts.\">"
        "</head><body>Inhalt</body></html>");
  write("help/ge/a.html", "<html><head><title>Warengruppen</title></head><body>Der Preis</body></html>");
  Global::PathHelp = Global::PathApp + "help\\ge\\";
  search("pre");
  EXPECT_EQ(listed(), QStringLiteral("Warengruppen"));
  EXPECT_EQ(stage.findChild<QLineEdit*>(QStringLiteral("HelpSearch"))->placeholderText(), QStringLiteral("Suchen"));
  type("xyz");
  EXPECT_EQ(listed(), QStringLiteral("Nichts."));
  press(Qt::Key_A, Qt::ControlModifier);
  type("PLUs");
  EXPECT_EQ(listed(), QStringLiteral("Price lists"));
}

TEST_F(SearchTest, APageThatTheLanguageLacksOpensInEnglish) {
  write("help/ge/contents.html", "<html><body><a href=\"b.html\">x</a></body></html>");
  Global::PathHelp = Global::PathApp + "help\\ge\\";
  open_help(&stage, QStringLiteral("index"));
  auto* contents = stage.findChild<QTextBrowser*>(QStringLiteral("HelpContents"));
  ASSERT_NE(contents, nullptr);
  emit contents->anchorClicked(QUrl::fromLocalFile(QString::fromStdString(host("help/ge/b.html"))));
  EXPECT_EQ(window()->windowTitle(), QStringLiteral("Price lists"));
}

}  // namespace
}  // namespace ecr::test

#include "help_test.moc"
