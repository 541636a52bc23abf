#pragma once
// The emulated register's own folder, where its state is edited while it may be read by others.

#include <QByteArray>
#include <QList>
#include <QString>

namespace ecr::robot {

class RegisterFolder {
 public:
  explicit RegisterFolder(QString folder) : folder_{std::move(folder)} {}

  /// Sets a key of register.txt; all other lines stay as they are. Throws a ScriptFault if it cannot be written.
  void set(const QByteArray& key, const QByteArray& value) const;

  /// Takes away every "KEY.N".
  void clear_numbered(const QByteArray& key) const;

  /// The machine shows these devices and no others.
  void show_devices(const QList<QByteArray>& captions) const;

  /// The caption of the serial port with that number.
  [[nodiscard]] static QByteArray port_caption(const QByteArray& number);

  /// It holds what a fresh register of that model holds.
  void hold_samples_of(const QString& model) const;

  /// Report N is answered with these bytes.
  void answer_report(int number, const QByteArray& bytes) const;

 private:
  [[nodiscard]] QString file(const char* name) const { return folder_ + QLatin1Char('/') + QLatin1String(name); }

  QString folder_;
};

}  // namespace ecr::robot
