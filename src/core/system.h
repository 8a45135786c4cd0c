#pragma once

#include <QString>

/// What differs from one system to another, as far as the toolkit does not see to it.
namespace core {

/// Whether files can be made in a folder: tried, for permissions do not always tell.
bool canWriteIn(const QString& folder);

/// Whether an existing file can be written; tried, without changing it.
bool canWrite(const QString& file);

/// Where all users of the computer can share a problem bank, on systems that install programs
/// into folders that nobody may write; empty on the others.
QString commonBankFolder();

/// Has the terminal take what this program writes as UTF-8, where it would not by itself.
void writeUtf8ToTerminal();

/// Whether the person has chosen high contrast in the system's own settings; false where it is
/// the desktop that has to be asked.
bool asksForHighContrast();

/// Whether screen readers are taken to read by way of AT-SPI: wherever this is not Windows.
bool readersUseAtSpi();

/// Has all threads take memory from two heaps, where each would get its own: they wait for one
/// another a little, and the program stays small.
void shareTwoHeaps();

} // namespace core
