#include "ui/screens.h"

#include "core/defect.h"
#include "ui/application.h"
#include "ui/screen.h"

#include <QCoreApplication>

namespace ui {

Screens::Screens(core::RandomSource& random, const core::Clock& clock, const QString& resources,
    const QString& sharedBank)
    : m_random(random)
    , m_clock(clock)
    , m_resources(resources)
    , m_bankFolder(resources, sharedBank)
{
}

Screens::~Screens()
{
    for (const QPointer<Screen>& screen : m_loaded)
        delete screen.data();
}

void Screens::add(const QString& name, Factory factory)
{
    m_factories[name] = std::move(factory);
}

Screen* Screens::loaded(const QString& name) const
{
    for (const QPointer<Screen>& screen : m_loaded) {
        if (screen && screen->objectName() == name)
            return screen;
    }
    return nullptr;
}

const Screens::Factory& Screens::factoryOf(const QString& name) const
{
    const auto found = m_factories.find(name);
    if (found == m_factories.end())
        throw core::Defect("no screen " + name.toStdString());
    return found->second;
}

Screen& Screens::load(const QString& name)
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

void Screens::show(const QString& name, const Screen* below)
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

void Screens::showModal(const QString& name, Screen& owner, std::function<void()> then)
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

void Screens::unload(const QString& name)
{
    if (Screen* screen = loaded(name))
        screen->unload();
}

void Screens::forget(Screen& screen)
{
    std::erase_if(m_loaded, [&](const auto& entry) { return !entry || entry == &screen; });
    if (screen.objectName() != m_mainScreen)
        return;
    unloadRest();
    QCoreApplication::quit();
}

void Screens::unloadRest()
{
    while (!m_loaded.empty()) {
        if (m_loaded.back())
            m_loaded.back()->unload();
        else
            m_loaded.pop_back();
    }
}

} // namespace ui
