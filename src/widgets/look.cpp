#include "widgets/look.h"

#include <cmath>

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <QStyleOption>
#include <qdrawutil.h>

#include "widgets/box_style.h"

namespace ecr {
namespace {

struct Colours {
  QColor window;
  QColor base;
  QColor alternate;
  QColor text;
  QColor muted;
  QColor line;
  QColor button;
  QColor button_hover;
  QColor accent;
  QColor accent_hover;
  QColor on_accent;
  QColor green;
  QColor red;
};

const Colours light = {0xF5F6F8, 0xFFFFFF, 0xF3F5F7, 0x1F2933, 0x6B7785, 0xCBD2D9, 0xFFFFFF,
                       0xEDF1F4, 0x0F766E, 0x0D655E, 0xFFFFFF, 0x15803D, 0xB91C1C};
const Colours dark = {0x1E2125, 0x262A2F, 0x2B3035, 0xE6EAEE, 0x98A2AD, 0x454C54, 0x2F343A,
                      0x3A4047, 0x2DA79A, 0x38BDAE, 0x0B1614, 0x4ADE80, 0xF87171};

const Colours* colours = &light;

QPalette palette_of(const Colours& c) {
  QPalette palette;
  palette.setColor(QPalette::Window, c.window);
  palette.setColor(QPalette::WindowText, c.text);
  palette.setColor(QPalette::Base, c.base);
  palette.setColor(QPalette::AlternateBase, c.alternate);
  palette.setColor(QPalette::Text, c.text);
  // A choice list shows a text that is none of its entries as a placeholder; it reads like any other.
  palette.setColor(QPalette::PlaceholderText, c.text);
  palette.setColor(QPalette::Button, c.button);
  palette.setColor(QPalette::ButtonText, c.text);
  palette.setColor(QPalette::ToolTipBase, c.base);
  palette.setColor(QPalette::ToolTipText, c.text);
  palette.setColor(QPalette::Highlight, c.accent);
  palette.setColor(QPalette::HighlightedText, c.on_accent);
  palette.setColor(QPalette::Link, c.accent);
  palette.setColor(QPalette::BrightText, c.red);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, c.muted);
  }
  return palette;
}

QString sheet_of(const Colours& c) {
  QString sheet = QStringLiteral(R"(
QPushButton { background: @button; border: 1px solid @line; border-radius: 6px; padding: 7px 18px; min-height: 20px; }
QPushButton:hover { background: @hover; }
QPushButton:focus { border: 2px solid @accent; padding: 6px 17px; }
QPushButton:pressed { background: @line; }
QPushButton:disabled { color: @muted; background: @window; }
QPushButton[emphasis="true"] { background: @accent; color: @onaccent; border-color: @accent; }
QPushButton[emphasis="true"]:hover { background: @accenthover; }
QPushButton[emphasis="true"]:focus { border: 2px solid @text; }
QPushButton[emphasis="true"]:disabled { background: @line; color: @muted; border-color: @line; }
QPushButton[tile="true"] { text-align: left; padding: 14px 20px; font-size: 11pt; }
QPushButton[tile="true"]:focus { padding: 13px 19px; }
QLineEdit, QComboBox { background: @base; border: 1px solid @line; border-radius: 5px; padding: 4px 8px; min-height: 20px;
  selection-background-color: @accent; selection-color: @onaccent; }
QLineEdit:focus, QComboBox:focus { border: 2px solid @accent; padding: 3px 7px; }
QLineEdit:disabled, QComboBox:disabled { color: @muted; background: @window; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox::down-arrow { width: 0; height: 0; border-left: 4px solid @base; border-right: 4px solid @base;
  border-top: 5px solid @muted; margin-right: 8px; }
QComboBox#Cmb_KeyList { combobox-popup: 0; }
QComboBox QAbstractItemView { background: @base; border: 1px solid @line; selection-background-color: @accent;
  selection-color: @onaccent; outline: none; }
QComboBox QLineEdit, QComboBox QLineEdit:focus { border: none; padding: 0; background: transparent; }
QTableView { background: @base; alternate-background-color: @alternate; margin: 1px; border: 1px solid @line; border-radius: 6px;
  selection-background-color: @accent; selection-color: @onaccent; outline: none; }
QTableView::item { padding: 0 8px; border: none; }
QTableView:focus { margin: 0; border: 2px solid @accent; }
QHeaderView { background: @window; }
QHeaderView::section { background: @window; color: @muted; border: none; border-bottom: 1px solid @line;
  padding: 6px 8px; font-weight: 600; }
QGroupBox { border: 1px solid @line; border-radius: 8px; margin-top: 10px; padding-top: 6px; }
QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; color: @muted; }
QGroupBox#F_Titolo, QGroupBox#Frame1 { border: none; margin: 0; padding: 0; }
QTabWidget::pane { border: none; border-top: 1px solid @line; }
QTabBar { qproperty-drawBase: 0; outline: none; }
QTabBar::tab { color: @muted; padding: 6px 14px 5px 14px; border: none; border-bottom: 2px solid transparent; }
QTabBar::tab:hover, QTabBar::tab:selected { color: @text; }
QTabBar::tab:selected { border-bottom-color: @accent; }
QTabBar::tab:focus { color: @accent; background: @hover; }
QWidget#WaitCard { background: @base; border: 1px solid @line; border-radius: 10px; }
QAbstractScrollArea::corner { background: transparent; border: none; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 2px; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 2px; }
QScrollBar::handle { background: @line; border-radius: 4px; min-height: 28px; min-width: 28px; }
QScrollBar::handle:hover { background: @muted; }
QScrollBar::add-line, QScrollBar::sub-line, QScrollBar::add-page, QScrollBar::sub-page { background: none; border: none;
  width: 0; height: 0; }
QProgressBar { background: @window; border: none; border-radius: 4px; min-height: 8px; max-height: 8px; }
QProgressBar::chunk { background: @accent; border-radius: 4px; }
)");
  // Longer names first, so that none is taken for the head of another.
  const std::pair<const char*, QColor> names[] = {{"@accenthover", c.accent_hover},
                                                  {"@onaccent", c.on_accent},
                                                  {"@accent", c.accent},
                                                  {"@alternate", c.alternate},
                                                  {"@button", c.button},
                                                  {"@hover", c.button_hover},
                                                  {"@window", c.window},
                                                  {"@muted", c.muted},
                                                  {"@base", c.base},
                                                  {"@line", c.line},
                                                  {"@text", c.text}};
  for (const auto& [name, colour] : names) sheet.replace(QLatin1String{name}, colour.name());
  return sheet;
}

}  // namespace

Scheme wanted_scheme() {
  const QByteArray named = qgetenv("VERMANTO_LOOK");
  if (named == "dark") return Scheme::dark;
  if (named == "light") return Scheme::light;
  return QGuiApplication::palette().color(QPalette::Window).lightness() < 128 ? Scheme::dark : Scheme::light;
}

void apply_look(QApplication& application, Scheme scheme) {
  colours = scheme == Scheme::dark ? &dark : &light;
  QApplication::setStyle(new BoxStyle{QStyleFactory::create(QStringLiteral("Fusion"))});
  QApplication::setPalette(palette_of(*colours));
  QFont font = QApplication::font();
  font.setPointSizeF(10);
  QApplication::setFont(font);
  application.setStyleSheet(sheet_of(*colours));
}

QColor text_green() {
  return colours->green;
}
QColor text_red() {
  return colours->red;
}
QColor text_plain() {
  return colours->text;
}
QColor line_colour() {
  return colours->line;
}

void make_heading(QLabel& label) {
  QFont font = label.font();
  font.setPointSizeF(17);
  font.setWeight(QFont::DemiBold);
  label.setFont(font);
}

void make_hint(QLabel& label) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, colours->muted);
  label.setPalette(palette);
}

void draw_focus(QPainter& painter, const QRect& place) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen{colours->accent, 2});
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF{place}.adjusted(1, 1, -1, -1), 3, 3);
}

void draw_card(QPainter& painter, const QStyleOption& button) {
  // Its corners are drawn smoothly, small, and the rest is stretched: smooth lines of that length take the toolkit much
  // longer than all else on the screen.
  constexpr double radius = 6;
  constexpr int corner = 8;
  constexpr int side = 2 * corner + 1;
  const bool focused = button.state.testFlag(QStyle::State_HasFocus);
  const int width = focused ? 2 : 1;
  const QColor& ground = button.state.testFlag(QStyle::State_Sunken)      ? colours->line
                         : button.state.testFlag(QStyle::State_MouseOver) ? colours->button_hover
                                                                          : colours->button;
  const qreal ratio = painter.device()->devicePixelRatioF();
  const int pixels = static_cast<int>(std::lround(side * ratio));
  const int corner_pixels = (pixels - 1) / 2;
  QPixmap patch{pixels, pixels};
  patch.fill(Qt::transparent);
  QPainter drawing{&patch};
  drawing.setRenderHint(QPainter::Antialiasing);
  drawing.scale(pixels / static_cast<double>(side), pixels / static_cast<double>(side));
  drawing.setPen(QPen{focused ? colours->accent : colours->line, static_cast<double>(width)});
  drawing.setBrush(ground);
  const double inset = width / 2.0;
  drawing.drawRoundedRect(QRectF{0, 0, side, side}.adjusted(inset, inset, -inset, -inset), radius - inset,
                          radius - inset);
  drawing.end();
  qDrawBorderPixmap(&painter, button.rect, {corner, corner, corner, corner}, patch, patch.rect(),
                    {corner_pixels, corner_pixels, corner_pixels, corner_pixels});
}

}  // namespace ecr
