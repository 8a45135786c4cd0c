#include "core/defect.h"

namespace core {

std::string SourceLine::text() const
{
    const std::string path(file);
    const std::size_t folder = path.rfind("src/");
    return (folder == std::string::npos ? path : path.substr(folder)) + ':'
        + std::to_string(line);
}

Defect::Defect(const std::string& what, SourceLine where)
    : std::logic_error(what)
    , m_where(where)
{
}

} // namespace core
