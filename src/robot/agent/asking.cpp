#include "robot/agent/asking.h"

#include <array>

#include <QApplication>
#include <QJsonArray>
#include <QPushButton>

#include "robot/agent/picture.h"
#include "robot/agent/reading.h"
#include "robot/agent/refusal.h"
#include "robot/agent/screens.h"

namespace ecr::robot {
namespace {

QWidget* named(const QJsonObject& request) {
  return control_named(request.value(QLatin1String("control")).toString());
}

QString kind_of(const QMessageBox* box) {
  switch (box->icon()) {
    case QMessageBox::Information:
      return QStringLiteral("information");
    case QMessageBox::Question:
      return QStringLiteral("question");
    case QMessageBox::Warning:
      return QStringLiteral("warning");
    case QMessageBox::Critical:
      return QStringLiteral("critical");
    case QMessageBox::NoIcon:
      break;
  }
  return QStringLiteral("plain");
}

QJsonValue box_value(const QJsonObject&) {
  const QMessageBox* box = message_box();
  if (box == nullptr) return QJsonValue::Null;
  QJsonArray buttons;
  if (box->button(QMessageBox::Ok) != nullptr) buttons.append(QStringLiteral("Ok"));
  if (box->button(QMessageBox::Yes) != nullptr) buttons.append(QStringLiteral("Yes"));
  if (box->button(QMessageBox::No) != nullptr) buttons.append(QStringLiteral("No"));
  if (box->button(QMessageBox::Cancel) != nullptr) buttons.append(QStringLiteral("Cancel"));
  return QJsonObject{{QStringLiteral("kind"), kind_of(box)},
                     {QStringLiteral("text"), box->text()},
                     {QStringLiteral("title"), box->windowTitle()},
                     {QStringLiteral("buttons"), buttons}};
}

QJsonValue chooser_value(const QJsonObject&) {
  const QFileDialog* chooser = file_chooser();
  if (chooser == nullptr) return QJsonValue::Null;
  return QJsonObject{{QStringLiteral("title"), chooser->windowTitle()},
                     {QStringLiteral("filters"), QJsonArray::fromStringList(chooser->nameFilters())},
                     {QStringLiteral("existing"), chooser->fileMode() != QFileDialog::AnyFile}};
}

QJsonValue screen_value(const QJsonObject&) {
  const QWidget* screen = active_screen();
  return QJsonObject{{QStringLiteral("name"), screen != nullptr ? screen->objectName() : QString{}},
                     {QStringLiteral("box"), message_box() != nullptr},
                     {QStringLiteral("up"), what_is_up()}};
}

QJsonValue title_value(const QJsonObject&) {
  const QWidget* screen = active_screen();
  if (screen == nullptr) throw not_possible(QStringLiteral("a screen with a title"), what_is_up());
  return screen->window()->windowTitle();
}

QJsonValue cell_value(const QJsonObject& request) {
  return cell_of(named(request), request.value(QLatin1String("row")).toInt(),
                 request.value(QLatin1String("column")).toInt());
}

QJsonValue tabs_value(const QJsonObject& request) {
  const QTabBar* tabs = tabs_in(named(request));
  QJsonArray captions;
  for (int i = 0; i < tabs->count(); ++i) captions.append(plain_caption(tabs->tabText(i)));
  return QJsonObject{{QStringLiteral("front"), tabs->currentIndex()}, {QStringLiteral("captions"), captions}};
}

/// The name of the control that the keys go to, or that they go back to when the box that is up is answered.
QJsonValue focus_value(const QJsonObject& request) {
  const QWidget* control = named(request);
  const QWidget* focus = control->window()->focusWidget();
  const bool its = focus != nullptr && (focus == control || control->isAncestorOf(focus));
  return QJsonObject{{QStringLiteral("its"), its},
                     {QStringLiteral("name"), focus != nullptr ? focus->objectName() : QString{}}};
}

QJsonValue picture_value(const QJsonObject& request) {
  save_picture(request.value(QLatin1String("path")).toString());
  return true;
}

struct Asked {
  const char* name;
  QJsonValue (*answer)(const QJsonObject& request);
};

constexpr auto asked = std::to_array<Asked>({
    {"screen", screen_value},
    {"box", box_value},
    {"chooser", chooser_value},
    {"title", title_value},
    {"cell", cell_value},
    {"tabs", tabs_value},
    {"has-focus", focus_value},
    {"picture", picture_value},
    {"text", [](const QJsonObject& request) { return QJsonValue{text_of(named(request))}; }},
    {"items",
     [](const QJsonObject& request) { return QJsonValue{QJsonArray::fromStringList(items_of(named(request)))}; }},
    {"count", [](const QJsonObject& request) { return QJsonValue{count_of(named(request))}; }},
    {"checked", [](const QJsonObject& request) { return QJsonValue{checked(named(request))}; }},
    {"visible", [](const QJsonObject& request) { return QJsonValue{shown_to_person(named(request))}; }},
    {"enabled", [](const QJsonObject& request) { return QJsonValue{named(request)->isEnabled()}; }},
    {"cursor", [](const QJsonObject& request) { return QJsonValue{cursor_of(named(request))}; }},
    {"colour", [](const QJsonObject& request) { return QJsonValue{colour_of(named(request))}; }},
    {"max-length", [](const QJsonObject& request) { return QJsonValue{max_length_of(named(request))}; }},
});

}  // namespace

std::optional<QJsonValue> value_of(const QJsonObject& request) {
  const QString what = request.value(QLatin1String("do")).toString();
  for (const Asked& row : asked) {
    if (what == QLatin1String(row.name)) return row.answer(request);
  }
  return std::nullopt;
}

}  // namespace ecr::robot
