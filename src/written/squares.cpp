#include "written/squares.h"

#include <algorithm>
#include <array>

namespace written {

namespace {

constexpr double Row = Squares::RowHeight;
constexpr std::array Sizes{Squares{6, Row, 0, 34}, Squares{12, Row / 2, Row / 2, 18},
    Squares{18, Row / 3, Row / 3, 17}, Squares{20, Row / 3, Row / 3, 17}};

} // namespace

const Squares& Squares::forCharacters(qsizetype characters)
{
    return *std::find_if(Sizes.begin(), Sizes.end() - 1,
        [characters](const Squares& size) { return size.columns >= characters; });
}

} // namespace written
