#include "core/errors.h"

using namespace Qt::StringLiterals;

namespace core {

Error::Error(QString text)
    : m_text(std::move(text))
    , m_utf8(m_text.toUtf8())
{
}

DivisionByZeroError::DivisionByZeroError()
    : Error(u"No se puede dividir entre 0."_s)
{
}

} // namespace core
