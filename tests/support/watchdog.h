#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>

/// Ends the program when nobody has fed it for as long as its patience lasts.
class Watchdog {
public:
    explicit Watchdog(std::chrono::seconds patience)
        : m_patience(patience)
        , m_thread([this] { watch(); })
    {
    }
    ~Watchdog()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_left = true;
        }
        m_fed.notify_one();
        m_thread.join();
    }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    void feed()
    {
        {
            const std::lock_guard lock(m_mutex);
            ++m_meals;
        }
        m_fed.notify_one();
    }

private:
    void watch()
    {
        std::unique_lock lock(m_mutex);
        while (!m_left) {
            const long seen = m_meals;
            if (!m_fed.wait_for(lock, m_patience, [&] { return m_left || m_meals != seen; })) {
                std::fputs("nothing has come back for too long\n", stderr);
                std::abort();
            }
        }
    }

    const std::chrono::seconds m_patience;
    std::mutex m_mutex;
    std::condition_variable m_fed;
    long m_meals = 0;
    bool m_left = false;
    std::thread m_thread; ///< last: it uses all the others
};
