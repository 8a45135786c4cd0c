#pragma once

#include "core/clock.h"
#include "core/random.h"
#include "ui/screen.h"
#include "ui/screens.h"

#include <QTemporaryDir>

#include <functional>

namespace gallery {

/// A screen that is got ready for its picture, through clicks and keys as a person's. The
/// clock stands at 10:20:30, so that the exercises are the same in every run.
class Stage {
public:
    /// Opens the screen with a canvas at this factor.
    Stage(const QString& screen, const QString& resources, double factor);

    ui::Screen& screen() const { return *m_screen; }
    ui::Screens& screens() { return m_screens; }

    /// A control or menu item by its object name; ends the program when there is none.
    template <typename T> T& control(const QString& name) const
    {
        auto* found = m_screen->findChild<T*>(name);
        if (found == nullptr)
            qFatal("no control %s", qPrintable(name));
        return *found;
    }
    void click(const QString& button) const;
    void pick(const QString& menuItem) const;
    void type(const QString& box, const QString& keys) const;
    void press(const QString& box, Qt::Key key) const;
    QString text(const QString& box) const;

    /// Does something that opens a box, types into it where it is an input box, keeps a
    /// picture of the box, and answers it with the button of this caption.
    void photographBox(
        const std::function<void()>& opens, const QString& answer, const QString& typed = {});

    /// What save() keeps instead of the screen: a box, or another screen.
    QPixmap picture;

private:
    class StandingClock final : public core::Clock {
    public:
        QTime timeOfDay() const override { return QTime(10, 20, 30, 500); }
        std::chrono::milliseconds elapsed() const override { return {}; }
    };

    core::SeededRandom m_random;
    StandingClock m_clock;
    ui::Screens m_screens;
    ui::Screen* m_screen;
};

/// Renders every screen in telling states to PNG files.
class Gallery {
public:
    using State = std::function<void(Stage&)>;

    /// resources: the folder "Recursos" of the source tree; a copy of it is used. With names,
    /// only those pictures are made, at factor 1.
    Gallery(QString folder, const QString& resources, QStringList names);

    /// Saves name.png at factor 1 and name@2.png at factor 2.
    void add(const QString& name, const QString& screen, const State& state = {});

private:
    void save(const QString& file, const QString& screen, const State& state, double factor);

    QString m_folder;
    QStringList m_names;
    QTemporaryDir m_resources;
};

} // namespace gallery
