#pragma once

#include "core/bank_folder.h"

#include <QString>

#include <functional>
#include <utility>

namespace core {
class Clock;
class RandomSource;
} // namespace core

namespace ui {

class Screen;

/// What a screen knows of the program around it: the other screens, by their names, and what it
/// may not own (the random source, the clock, the folders of the problem bank and of the
/// pictures). There is one instance of each screen, made on first use.
class Screens {
public:
    virtual ~Screens() = default;
    Screens(const Screens&) = delete;
    Screens& operator=(const Screens&) = delete;

    core::RandomSource& random() const { return m_random; }
    const core::Clock& clock() const { return m_clock; }
    QString resources() const { return m_resources; }
    const core::BankFolder& bankFolder() const { return m_bankFolder; }

    /// The screen, made and filled if it is not loaded yet. What its Form_Load throws comes
    /// through, and the screen is not loaded then.
    virtual Screen& load(const QString& name) = 0;
    template <typename S> S& load() { return static_cast<S&>(load(S::screenName())); }

    /// Shows a screen beside the others. below: as a dialog of that one, it opens at most at
    /// the same factor; any other screen opens as large as its display allows.
    virtual void show(const QString& name, const Screen* below = nullptr) = 0;

    /// Shows a screen that blocks all others until it is closed or hidden; then runs `then`
    /// as a handler of owner, unless owner is gone. It is a dialog of owner unless that is the
    /// main screen.
    virtual void showModal(
        const QString& name, Screen& owner, std::function<void()> then = {}) = 0;

    /// The same with a dialog: `then` is handed the dialog when it has closed, to read from it
    /// what was chosen. The one way in which a dialog hands back a choice.
    template <typename S> void showModal(Screen& owner, std::function<void(const S&)> then)
    {
        showModal(S::screenName(), owner,
            [dialog = &load<S>(), then = std::move(then)] { then(*dialog); });
    }

    /// Closes a screen and drops its state; nothing when it is not loaded.
    virtual void unload(const QString& name) = 0;

protected:
    /// random and clock must outlive the screens. resources is the path of the folder
    /// "Recursos"; sharedBank that of the bank's folder where nobody may write there.
    Screens(core::RandomSource& random, const core::Clock& clock, const QString& resources,
        const QString& sharedBank)
        : m_random(random)
        , m_clock(clock)
        , m_resources(resources)
        , m_bankFolder(resources, sharedBank)
    {
    }

private:
    core::RandomSource& m_random;
    const core::Clock& m_clock;
    QString m_resources;
    core::BankFolder m_bankFolder;
};

} // namespace ui
