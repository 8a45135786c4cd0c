#pragma once

#include "core/clock.h"
#include "core/random.h"
#include "ui/screen.h"
#include "ui/screen_set.h"

#include <QTemporaryDir>

#include <functional>
#include <optional>

class QDialog;

namespace gallery {

/// A screen that is got ready for its picture, through clicks and keys as a person's. The
/// clock stands at 10:20:30, so that the exercises are the same in every run.
class Stage {
public:
    /// Opens the screen with a canvas at exactly this factor; at none, as it comes up on the
    /// display.
    Stage(const QString& screen, const QString& resources, std::optional<double> factor);

    ui::Screen& screen() const { return *m_screen; }
    ui::ScreenSet& screens() { return m_screens; }

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

    /// The solution that these boxes show after some steps, found on a stage of its own: on this
    /// one, asking for it would leave the exercise uncounted.
    QStringList solution(const std::function<void(Stage&)>& steps, const QStringList& boxes);

    /// Does something that opens a box, types into it where it is an input box, keeps a
    /// picture of the box, and answers it with the button of this caption.
    void photographBox(
        const std::function<void()>& opens, const QString& answer, const QString& typed = {});

    /// The same, with a picture of the screen behind the box.
    void photographBehindBox(const std::function<void()>& opens, const QString& answer);

    /// Makes the window as wide as displays are, so that its ground is seen beside the canvas.
    void widen();

    /// Keeps a picture of another screen, at the factor of this one.
    void photographScreen(ui::Screen& other);

    /// Keeps the picture of the screen as it is now, or of what stands over it: a box, or
    /// another screen, for which this one may have hidden.
    void keep(QWidget* over = nullptr);

    QPixmap picture; ///< what was kept
    double pictured = 0; ///< the factor of the screen then

private:
    class StandingClock final : public core::Clock {
    public:
        QTime timeOfDay() const override { return QTime(10, 20, 30, 500); }
        /// A second more at each look, so that no box makes the camera wait.
        std::chrono::milliseconds elapsed() const override
        {
            return m_elapsed += std::chrono::seconds(1);
        }

    private:
        mutable std::chrono::milliseconds m_elapsed{};
    };

    void zoom(ui::Screen& screen) const;

    /// Does something that opens a box, does something with the box once it is up, and answers
    /// it.
    static void withBox(const std::function<void()>& opens, const QString& answer,
        const std::function<void(QDialog&)>& whenUp);

    std::optional<double> m_factor;
    core::SeededRandom m_random;
    StandingClock m_clock;
    ui::ScreenSet m_screens;
    ui::Screen* m_screen;
};

/// Renders every screen in telling states to PNG files.
class Gallery {
public:
    using State = std::function<void(Stage&)>;

    /// resources: the folder "Recursos" of the source tree; a copy of it is used. With names,
    /// only those pictures are made.
    Gallery(QString folder, const QString& resources, QStringList names);

    /// Saves the screen at factors 1 and 2, and as it is seen on a school laptop, the display
    /// around it; the names of the files tell the factors: name@1.png, name@2.png,
    /// name-1366x768@1.8.png. A picture that is asked for as name alone is made at factor 1.
    void add(const QString& name, const QString& screen, const State& state = {});

private:
    /// Where there is no factor, %1 in the name stands for the one found.
    void save(const QString& file, const QString& screen, const State& state,
        std::optional<double> factor) const;

    QString m_folder;
    QStringList m_names;
    QTemporaryDir m_resources;
};

} // namespace gallery
