#include "screens/screen_factory.h"

#include <utility>

#include <QHash>

namespace ecr {
namespace {

QHash<QString, MakeScreen>& makers() {
  static QHash<QString, MakeScreen> map;
  return map;
}

}  // namespace

void register_screen(const QString& name, MakeScreen make) {
  makers().insert(name, std::move(make));
}

bool has_screen(const QString& name) {
  return makers().contains(name);
}

QStringList screen_names() {
  QStringList names = makers().keys();
  names.sort();
  return names;
}

Screen* make_screen(const QString& name) {
  const auto found = makers().constFind(name);
  return found == makers().constEnd() ? nullptr : (*found)();
}

}  // namespace ecr
