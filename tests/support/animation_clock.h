#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QVariantAnimation>

/// While it lives, the toolkit's animations stand still until a test lets time pass.
class AnimationClock final : public QAnimationDriver {
public:
    AnimationClock()
    {
        install();
        // While the first animation begins, the toolkit goes by the real time for a moment: here
        // one begins that never ends.
        m_endless.setStartValue(0);
        m_endless.setEndValue(1);
        m_endless.setLoopCount(-1);
        m_endless.start();
        pass(0);
    }
    ~AnimationClock() override
    {
        m_endless.stop();
        uninstall();
    }

    /// One frame, this many milliseconds after the one before.
    void pass(int milliseconds)
    {
        // From its event loop the toolkit begins what has been started, then starts this clock.
        for (int step = 0; step < 2; ++step)
            QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        m_elapsed += milliseconds;
        advance();
    }

    qint64 elapsed() const override { return m_elapsed; }

protected:
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

private:
    QVariantAnimation m_endless;
    qint64 m_elapsed = 0; ///< since the clock was last started, in milliseconds
};
