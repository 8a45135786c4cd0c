#pragma once

#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

namespace core {

/// A line of the sources. As a default argument, here() is the line of the caller.
struct SourceLine {
    const char* file;
    int line;

    static constexpr SourceLine here(
        const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        return {file, line};
    }

    /// "src/folder/file.cpp:12", wherever the sources were when they were compiled.
    std::string text() const;
};

/// A mistake of the program itself (an index out of range, a state that cannot be), where an
/// Error is a failure of the user's world. what() is for developers.
class Defect : public std::logic_error {
public:
    explicit Defect(const std::string& what, SourceLine where = SourceLine::here());

    SourceLine where() const { return m_where; }

private:
    SourceLine m_where;
};

/// The element at an index from 0; throws Defect where there is none.
template <typename Container, typename Index>
decltype(auto) at(Container& container, Index index, SourceLine where = SourceLine::here())
{
    if (std::cmp_less(index, 0) || std::cmp_greater_equal(index, std::size(container)))
        throw Defect("no element " + std::to_string(index), where);
    return container[static_cast<decltype(container.size())>(index)];
}

} // namespace core
