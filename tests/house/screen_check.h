#pragma once
// What must hold for every screen, whatever it shows: names, room for every text, no control over another one, a way by
// keyboard to everything. Each check answers with its complaints; none is good.

#include <QStringList>
#include <QWidget>

namespace ecr::test {

/// Controls without a name, and names that stand twice.
[[nodiscard]] QStringList complaints_about_names(const QWidget& screen);

/// Labels, buttons, headings and choices whose text has no room.
[[nodiscard]] QStringList complaints_about_cut_texts(const QWidget& screen);

/// Controls that lie over another one or reach out of what they lie on.
[[nodiscard]] QStringList complaints_about_places(const QWidget& screen);

/// Letters that mark two controls of one screen: pressed with Alt, they would reach neither.
[[nodiscard]] QStringList complaints_about_letter_marks(const QWidget& screen);

/// Controls that take the focus and tell nobody what they are.
[[nodiscard]] QStringList complaints_about_silent_controls(const QWidget& screen);

/// Controls that Tab never reaches, nor the arrow keys from one of their kind beside them that it does reach. The screen must be on show; the focus ends where it was.
[[nodiscard]] QStringList complaints_about_tab(QWidget& screen);

}  // namespace ecr::test
