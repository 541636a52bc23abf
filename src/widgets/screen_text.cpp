#include "widgets/screen_text.h"

#include "core/system.h"

namespace ecr {

QString screen_text(std::string_view bytes) {
  QString text = field_text(bytes);
  if (text.contains(u'\r')) text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  return text;
}

QString own_words(OwnText text) {
  const std::string_view utf8 = own_text(text);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString field_text(std::string_view bytes) {
  const std::u16string unicode = unicode_of(bytes);
  return QString::fromUtf16(unicode.data(), static_cast<qsizetype>(unicode.size()));
}

CodeText codes_of(const QString& text) {
  return codes_of(std::u16string_view{text.toStdU16String()});
}

std::string page_bytes(const QString& text) {
  return bytes_of(text.toStdU16String());
}

QString path_for_toolkit(const std::string& host) {
  if (system_layer().paths_are_utf8()) return QString::fromStdString(host);
  return QString::fromStdU16String(unicode_of(host));
}

std::string path_of_toolkit(const QString& path) {
  return system_layer().paths_are_utf8() ? path.toStdString() : page_bytes(path);
}

QString trim_end(const QString& text) {
  qsizetype length = text.size();
  while (length > 0 && text[length - 1] == u' ') --length;
  return text.left(length);
}

}  // namespace ecr
