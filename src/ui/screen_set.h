#pragma once

#include "ui/screens.h"

#include <QPointer>

#include <map>
#include <vector>

namespace ui {

/// The set of the program's screens: makes each when it is first asked for, and keeps it until
/// it is closed.
class ScreenSet final : public Screens {
public:
    using Factory = std::function<Screen*(Screens&)>;

    /// The arguments are those of Screens.
    ScreenSet(core::RandomSource& random, const core::Clock& clock, const QString& resources,
        const QString& sharedBank = {});
    ~ScreenSet() override;

    /// Makes a screen known by its name; it is not made yet.
    void add(const QString& name, Factory factory);
    template <typename S> void add()
    {
        add(S::screenName(), [](Screens& screens) -> Screen* { return new S(screens); });
    }

    /// The names of all screens that are known.
    QStringList names() const;

    /// Unloading this screen unloads all others and ends the program.
    void setMainScreen(const QString& name) { m_mainScreen = name; }

    /// The screen, when it is loaded; nullptr otherwise.
    Screen* loaded(const QString& name) const;

    using Screens::load;
    using Screens::showModal;
    Screen& load(const QString& name) override;
    void show(const QString& name, const Screen* below = nullptr) override;
    void showModal(const QString& name, Screen& owner, std::function<void()> then = {}) override;
    void unload(const QString& name) override;

private:
    const Factory& factoryOf(const QString& name) const;
    void forget(Screen& screen);
    void unloadRest();

    QString m_mainScreen;
    std::map<QString, Factory> m_factories;
    std::vector<QPointer<Screen>> m_loaded; ///< in the order of loading
};

} // namespace ui
