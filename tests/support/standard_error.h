#pragma once

#include <QString>

#include <iostream>
#include <sstream>

/// Keeps what is written to std::cerr as long as it lives.
class StandardError {
public:
    StandardError()
        : m_before(std::cerr.rdbuf(m_kept.rdbuf()))
    {
    }
    ~StandardError() { std::cerr.rdbuf(m_before); }
    StandardError(const StandardError&) = delete;
    StandardError& operator=(const StandardError&) = delete;

    QString text() const { return QString::fromStdString(m_kept.str()); }

private:
    std::ostringstream m_kept;
    std::streambuf* m_before;
};
