#pragma once
// Whole files. A file is changed by putting a new one in its place: what shares its content through a hard link keeps
// the old, and whoever reads it meanwhile finds the old or the new.

#include <optional>

#include <QByteArray>
#include <QString>

namespace ecr::robot {

/// Nothing if there is no such file or it cannot be read.
[[nodiscard]] std::optional<QByteArray> read_bytes(const QString& path);

/// Makes folders as needed. Throws a ScriptFault if the file cannot be written.
void write_bytes(const QString& path, const QByteArray& bytes);

/// Copies a file, or a folder with all in it. Throws a ScriptFault.
void copy_all(const QString& from, const QString& to);

/// The lines of a text file without their ends (line feed, with or without a carriage return before it). What stands
/// behind the last end is a line if there is anything.
[[nodiscard]] QList<QByteArray> lines_of(const QByteArray& bytes);

}  // namespace ecr::robot
