#include "ui/screen_set.h"

#include "core/defect.h"
#include "ui/application.h"
#include "ui/screen.h"

#include <QCoreApplication>

namespace ui {

ScreenSet::ScreenSet(core::RandomSource& random, const core::Clock& clock,
    const QString& resources, const QString& sharedBank)
    : Screens(random, clock, resources, sharedBank)
{
}

ScreenSet::~ScreenSet()
{
    for (const QPointer<Screen>& screen : m_loaded)
        delete screen.data();
}

void ScreenSet::add(const QString& name, Factory factory)
{
    m_factories[name] = std::move(factory);
}

QStringList ScreenSet::names() const
{
    QStringList names;
    for (const auto& [name, factory] : m_factories)
        names << name;
    return names;
}

Screen* ScreenSet::loaded(const QString& name) const
{
    for (const QPointer<Screen>& screen : m_loaded) {
        if (screen && screen->objectName() == name)
            return screen;
    }
    return nullptr;
}

const ScreenSet::Factory& ScreenSet::factoryOf(const QString& name) const
{
    const auto found = m_factories.find(name);
    if (found == m_factories.end())
        throw core::Defect("no screen " + name.toStdString());
    return found->second;
}

Screen& ScreenSet::load(const QString& name)
{
    if (Screen* screen = loaded(name))
        return *screen;
    if (name != m_mainScreen)
        installToolkitTexts();
    const QPointer<Screen> screen(factoryOf(name)(*this));
    m_loaded.emplace_back(screen); // at once: what Form_Load lets run must not make a second
    QObject::connect(
        screen, &Screen::unloaded, screen, [this, made = screen.data()] { forget(*made); });
    try {
        screen->load();
    } catch (...) {
        delete screen.data();
        throw;
    }
    return *screen;
}

void ScreenSet::show(const QString& name, const Screen* below)
{
    Screen& screen = load(name);
    if (below != nullptr)
        screen.openOver(*below);
    if (screen.isLoading()) // whoever loads it will show it
        return;
    screen.setWindowState(screen.windowState() & ~Qt::WindowMinimized);
    screen.show();
    screen.raise();
    screen.activateWindow();
}

void ScreenSet::showModal(const QString& name, Screen& owner, std::function<void()> then)
{
    Screen& screen = load(name);
    const QPointer<Screen> waiter(&owner);
    if (owner.objectName() != m_mainScreen)
        screen.openOver(owner);
    screen.showModal(owner, [waiter, then = std::move(then)] {
        if (waiter && then)
            waiter->guarded(then);
    });
}

void ScreenSet::unload(const QString& name)
{
    if (Screen* screen = loaded(name))
        screen->unload();
}

void ScreenSet::forget(Screen& screen)
{
    std::erase_if(m_loaded, [&](const auto& entry) { return !entry || entry == &screen; });
    if (screen.objectName() != m_mainScreen)
        return;
    unloadRest();
    QCoreApplication::quit();
}

void ScreenSet::unloadRest()
{
    while (!m_loaded.empty()) {
        if (m_loaded.back())
            m_loaded.back()->unload();
        else
            m_loaded.pop_back();
    }
}

} // namespace ui
