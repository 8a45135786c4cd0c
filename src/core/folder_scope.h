#pragma once

#include <QString>

namespace core {

/// Makes a folder the current one for as long as the object lives, so that files in it go
/// by their bare names; then goes back to the folder that was current before.
class FolderScope {
public:
    /// Throws FileError when the folder does not exist or cannot be entered.
    explicit FolderScope(const QString& folder);
    ~FolderScope();
    Q_DISABLE_COPY_MOVE(FolderScope)

    /// Leaves the folder current when the object goes.
    void stay() { m_stays = true; }

private:
    QString m_previous;
    bool m_stays = false;
};

} // namespace core
