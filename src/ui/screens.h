#pragma once

#include "core/bank_folder.h"

#include <QPointer>
#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace core {
class Clock;
class RandomSource;
} // namespace core

namespace ui {

class Screen;

/// The set of the program's screens, each made on first use, one instance of each. Also
/// hands every screen what it may not own: the random source, the clock, the folders of the
/// problem bank and of the pictures.
class Screens {
public:
    using Factory = std::function<Screen*(Screens&)>;

    /// random and clock must outlive the set. resources is the path of the folder
    /// "Recursos"; sharedBank that of the bank's folder where nobody may write there.
    Screens(core::RandomSource& random, const core::Clock& clock, const QString& resources,
        const QString& sharedBank = {});
    ~Screens();
    Screens(const Screens&) = delete;
    Screens& operator=(const Screens&) = delete;

    core::RandomSource& random() const { return m_random; }
    const core::Clock& clock() const { return m_clock; }
    QString resources() const { return m_resources; }
    const core::BankFolder& bankFolder() const { return m_bankFolder; }

    /// Makes a screen known by its name; it is not made yet.
    void add(const QString& name, Factory factory);
    template <typename S> void add()
    {
        add(S::screenName(), [](Screens& screens) -> Screen* { return new S(screens); });
    }

    /// The screen, when it is loaded; nullptr otherwise.
    Screen* loaded(const QString& name) const;

    /// The screen, made and filled if it is not loaded yet. What its Form_Load throws comes
    /// through, and the screen is not loaded then.
    Screen& load(const QString& name);
    template <typename S> S& load() { return static_cast<S&>(load(S::screenName())); }

    /// Shows a screen beside the others. below: as a dialog of that one, it opens at most at
    /// the same factor; any other screen opens as large as its display allows.
    void show(const QString& name, const Screen* below = nullptr);

    /// Shows a screen that blocks all others until it is closed or hidden; then runs `then`
    /// as a handler of owner, unless owner is gone. It is a dialog of owner unless that is the
    /// main screen.
    void showModal(const QString& name, Screen& owner, std::function<void()> then = {});

    /// The same with a dialog: `then` is handed the dialog when it has closed, to read from it
    /// what was chosen. The one way in which a dialog hands back a choice.
    template <typename S> void showModal(Screen& owner, std::function<void(const S&)> then)
    {
        showModal(S::screenName(), owner,
            [dialog = &load<S>(), then = std::move(then)] { then(*dialog); });
    }

    /// Closes a screen and drops its state; nothing when it is not loaded.
    void unload(const QString& name);

    /// Unloading this screen unloads all others and ends the program.
    void setMainScreen(const QString& name) { m_mainScreen = name; }

private:
    const Factory& factoryOf(const QString& name) const;
    void forget(Screen& screen);
    void unloadRest();

    core::RandomSource& m_random;
    const core::Clock& m_clock;
    QString m_resources;
    core::BankFolder m_bankFolder;
    QString m_mainScreen;
    std::map<QString, Factory> m_factories;
    std::vector<QPointer<Screen>> m_loaded; ///< in the order of loading
};

} // namespace ui
