#pragma once
// How the toolkit's values read in a failed expectation.

#include <ostream>

#include <QColor>
#include <QString>

inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QColor& colour, std::ostream* out) {
  *out << colour.name(QColor::HexArgb).toStdString();
}
