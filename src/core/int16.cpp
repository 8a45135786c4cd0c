#include "core/int16.h"

#include "core/errors.h"

using namespace Qt::StringLiterals;

namespace core {

void Int16::throwOverflow(int value)
{
    throw OverflowError(
        u"El valor %1 no cabe: el programa solo calcula con números de -32768 a 32767."_s.arg(
            value));
}

void Int16::throwDivisionByZero()
{
    throw DivisionByZeroError();
}

} // namespace core
