#pragma once

#include <QString>

#include <exception>

namespace core {

/// A failure of the user's world (a file, a template, a number too large), which a person is
/// told about; a mistake of the program itself is a Defect. text() is Spanish and says what is
/// wrong, where, and, when there is something to do about it, what.
class Error : public std::exception {
public:
    explicit Error(QString text);

    QString text() const { return m_text; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_text;
    QByteArray m_utf8;
};

/// A result or a typed number does not fit its integer type.
class OverflowError : public Error {
public:
    using Error::Error;
};

/// A division by zero.
class DivisionByZeroError : public Error {
public:
    DivisionByZeroError();
};

/// A file cannot be read or written as asked.
class FileError : public Error {
public:
    using Error::Error;
};

} // namespace core
