#include "gallery.h"

#include "activities.h"
#include "display.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QtMath>
#include <QtTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace gallery {

Stage::Stage(const QString& screen, const QString& resources, std::optional<double> factor)
    : m_factor(factor)
    , m_screens(m_random, m_clock, resources)
{
    addScreens(m_screens);
    m_screens.show(screen);
    m_screen = m_screens.loaded(screen);
    zoom(*m_screen);
    [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(m_screen);
}

void Stage::zoom(ui::Screen& screen) const
{
    if (!m_factor)
        return;
    // The second time from a size that is a pixel off at most, not a pixel enlarged.
    for (int i = 0; i < 2; ++i) {
        const QSizeF size = QSizeF(screen.size()) * (*m_factor / screen.factor());
        screen.resize(qCeil(size.width()), qCeil(size.height()));
    }
    if (std::abs(screen.factor() - *m_factor) > 1e-6)
        qFatal("%s is at factor %f", qPrintable(screen.objectName()), screen.factor());
}

void Stage::photographScreen(ui::Screen& other)
{
    zoom(other);
    QTest::qWait(20);
    keep(&other);
}

void Stage::keep(QWidget* over)
{
    pictured = m_screen->factor();
    if (m_factor)
        picture = over == nullptr ? m_screen->grab() : over->grab();
    else if (m_screen->isVisible())
        picture = onDisplay(*m_screen, over);
    else
        picture = onDisplay(*over, nullptr);
}

void Stage::click(const QString& button) const
{
    QTest::mouseClick(&control<QPushButton>(button), Qt::LeftButton);
}

void Stage::pick(const QString& menuItem) const
{
    control<QAction>(menuItem).trigger();
}

void Stage::type(const QString& box, const QString& keys) const
{
    QTest::keyClicks(&control<QWidget>(box), keys);
}

void Stage::press(const QString& box, Qt::Key key) const
{
    QTest::keyClick(&control<QWidget>(box), key);
}

QString Stage::text(const QString& box) const
{
    return control<QLineEdit>(box).text();
}

QStringList Stage::solution(const std::function<void(Stage&)>& steps, const QStringList& boxes)
{
    QStringList texts;
    {
        Stage twin(m_screen->objectName(), m_screens.resources(), 1);
        steps(twin);
        twin.click(u"Command2(2)"_s);
        for (const QString& box : boxes)
            texts << twin.text(box);
    }
    m_screen->activateWindow();
    [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(m_screen);
    return texts;
}

void Stage::photographBox(
    const std::function<void()>& opens, const QString& answer, const QString& typed)
{
    withBox(opens, answer, [&](QDialog& box) {
        if (auto* edit = box.findChild<QLineEdit*>())
            QTest::keyClicks(edit, typed);
        keep(&box); // the answer may close the screen
    });
}

void Stage::photographBehindBox(const std::function<void()>& opens, const QString& answer)
{
    withBox(opens, answer, [this](const QDialog&) { keep(); });
}

void Stage::withBox(const std::function<void()>& opens, const QString& answer,
    const std::function<void(QDialog&)>& whenUp)
{
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible() || !box->isActiveWindow())
            return;
        watch.stop();
        whenUp(*box);
        for (QPushButton* button : box->findChildren<QPushButton*>()) {
            if (button->text() == answer)
                button->click();
        }
    });
    watch.start(20);
    opens();
}

void Stage::widen()
{
    const QSize display = m_screen->screen()->size();
    const QSize wide(m_screen->height() * display.width() / display.height(), m_screen->height());
    m_screen->move(m_screen->x() - (wide.width() - m_screen->width()) / 2, m_screen->y());
    m_screen->resize(wide);
}

Gallery::Gallery(QString folder, const QString& resources, QStringList names)
    : m_folder(std::move(folder))
    , m_names(std::move(names))
{
    QDir().mkpath(m_folder);
    for (const QFileInfo& file : QDir(resources).entryInfoList(QDir::Files))
        QFile::copy(file.filePath(), m_resources.filePath(file.fileName()));
}

void Gallery::add(const QString& name, const QString& screen, const State& state)
{
    const auto isWanted = [this](const QString& file) {
        return m_names.isEmpty() || m_names.contains(file);
    };
    if (m_names.contains(name))
        save(name, screen, state, 1);
    for (const int factor : {1, 2}) {
        const QString file = u"%1@%2"_s.arg(name).arg(factor);
        if (isWanted(file))
            save(file, screen, state, factor);
    }
    if (m_names.isEmpty())
        save(name + u"-1366x768@%1"_s, screen, state, {});
}

void Gallery::save(const QString& file, const QString& screen, const State& state,
    std::optional<double> factor) const
{
    Stage stage(screen, m_resources.path(), factor);
    if (state)
        state(stage);
    QTest::qWait(20); // fonts and animations come to rest
    if (stage.picture.isNull())
        stage.keep();
    const QString name = factor ? file : file.arg(stage.pictured);
    stage.picture.save(u"%1/%2.png"_s.arg(m_folder, name));
}

} // namespace gallery
