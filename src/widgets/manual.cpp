#include "widgets/manual.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocument>

#include "core/files.h"
#include "core/global.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

QString english_folder() {
  return path_for_toolkit(host_path(Global::PathApp + "help\\eng\\"));
}

QString contents_of(const QString& path) {
  QFile file{path};
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll());
}

QStringList words_of(const QString& question) {
  return question.simplified().split(u' ', Qt::SkipEmptyParts);
}

}  // namespace

QString manual_file(const QString& file) {
  const QString path = path_for_toolkit(host_path(Global::PathHelp)) + file;
  return QFileInfo::exists(path) ? path : english_folder() + file;
}

std::vector<ManualPage> manual_pages() {
  QStringList files = QDir{english_folder()}.entryList({QStringLiteral("*.html")}, QDir::Files);
  files += QDir{path_for_toolkit(host_path(Global::PathHelp))}.entryList({QStringLiteral("*.html")}, QDir::Files);
  files.removeDuplicates();
  files.removeAll(QStringLiteral("contents.html"));
  std::vector<ManualPage> pages;
  for (const QString& file : files) {
    QTextDocument document;
    document.setHtml(contents_of(manual_file(file)));
    pages.push_back({file, document.metaInformation(QTextDocument::DocumentTitle), document.toPlainText()});
  }
  std::sort(pages.begin(), pages.end(), [](const ManualPage& one, const ManualPage& other) {
    return QString::localeAwareCompare(one.title, other.title) < 0;
  });
  return pages;
}

std::vector<ManualPage> pages_with(const std::vector<ManualPage>& pages, const QString& question) {
  const QStringList words = words_of(question);
  std::vector<ManualPage> found;
  if (words.isEmpty()) return found;
  for (const ManualPage& page : pages) {
    const bool holds_all = std::all_of(words.begin(), words.end(), [&](const QString& word) {
      return page.title.contains(word, Qt::CaseInsensitive) || page.text.contains(word, Qt::CaseInsensitive);
    });
    if (holds_all) found.push_back(page);
  }
  std::stable_partition(found.begin(), found.end(), [&](const ManualPage& page) {
    return std::any_of(words.begin(), words.end(),
                       [&](const QString& word) { return page.title.contains(word, Qt::CaseInsensitive); });
  });
  return found;
}

QString manual_word(const QString& name, const QString& otherwise) {
  static const QRegularExpression meta{QStringLiteral("<meta name=\"([^\"]*)\" content=\"([^\"]*)\"")};
  const QString contents = contents_of(manual_file(QStringLiteral("contents.html")));
  for (auto match = meta.globalMatch(contents); match.hasNext();) {
    const QRegularExpressionMatch found = match.next();
    if (found.captured(1) == name) return found.captured(2);
  }
  return otherwise;
}

}  // namespace ecr
