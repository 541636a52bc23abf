#pragma once
// Which screens there are, by name. The menus ask here for what they open; the program's entry fills it.

#include <functional>

#include <QString>
#include <QStringList>

namespace ecr {

class Screen;

using MakeScreen = std::function<Screen*()>;

void register_screen(const QString& name, MakeScreen make);

[[nodiscard]] bool has_screen(const QString& name);

/// The names of all of them, in alphabetical order.
[[nodiscard]] QStringList screen_names();

/// A new screen of that name; the stage takes it over. nullptr where there is none.
[[nodiscard]] Screen* make_screen(const QString& name);

}  // namespace ecr
