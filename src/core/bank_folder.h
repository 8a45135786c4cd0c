#pragma once

#include <QString>

#include <optional>

namespace core {

/// The name of the problem bank in its folder.
inline const QString BankFile = QStringLiteral("Problemas3.dat");

/// The folder of the problem bank: "Recursos" beside the program or, where nobody may write
/// there, one that the users of the computer share. That one is made at the first save, and
/// starts as a copy of the bank that came with the program.
class BankFolder {
public:
    /// resources is the path of "Recursos"; shared is the other folder's, empty where the
    /// system has none.
    explicit BankFolder(QString resources, QString shared = {});

    /// The folder to read the bank from.
    QString toRead() const;

    /// The folder to save the bank to, made if need be. Throws FileError when it cannot be.
    QString toSave() const;

private:
    bool isShared() const;
    QString sharedBank() const;
    void makeShared() const;

    QString m_resources;
    QString m_shared;
    mutable std::optional<bool> m_isShared; ///< found out once, when it is first asked
};

} // namespace core
