#pragma once

#include <QString>
#include <QStringList>
#include <string>

namespace korvin::tour {

/// What is compared of a measurement: the rows of the point list ("number, time, X, Y" parted by tabs).
///
/// Reads the three files of a saved measurement as another program would, and holds them against the rows
/// that the window showed when it was saved. Returns what it read, in words. Throws `StepFailed` at the first
/// difference: a missing file, another count, a value that is off by more than its last shown digit.
std::string compareFiles(const QString& file, const QStringList& rows);

/// The same for a line: `readings` are the rows of the table ("number, z, X, Y") before any evaluation,
/// `rows` those of the evaluation that was shown when it was saved.
std::string compareLineFiles(const QString& file, const QStringList& readings, const QStringList& rows);

}  // namespace korvin::tour
