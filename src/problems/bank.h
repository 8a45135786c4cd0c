#pragma once

#include "core/errors.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace problems {

/// The lines of the problem bank, and which of them the current cycle has used.
struct Bank {
    QStringList lines;
    std::vector<bool> used; ///< one flag a line
};

/// Where the current folder is left when there is no bank file.
enum class MissingBank { RestoreFolder, StayInFolder };

/// The most lines that a bank can hold.
inline constexpr int MostBankLines = 32767;

/// The lines of the bank in a file, empty ones left out. Throws core::FileError when it cannot
/// be read or has more than MostBankLines lines.
QStringList readBankFile(const QString& path);

/// Reads "Problemas3.dat" in folder (the path of Recursos): its lines, empty ones left out,
/// and as many flags, all false. Nothing when the file does not exist. The current folder
/// is changed to folder meanwhile. Throws core::FileError when the folder is missing, the
/// file cannot be read or has more than MostBankLines lines.
std::optional<Bank> LeerBanco(
    const QString& folder, MissingBank missing = MissingBank::RestoreFolder);

/// Copies "Problemas3.dat" to "Problemas3.bak" and replaces it by the lines, empty ones left
/// out. Each file is replaced in one step: whatever happens, the bank is the old or the new
/// one, whole. The current folder is changed to folder meanwhile. Throws core::FileError,
/// with the number of the line where one is at fault.
void GuardarBanco(const QString& folder, const QStringList& lines);

} // namespace problems
