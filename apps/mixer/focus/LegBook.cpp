#include "mixer/focus/LegBook.h"

#include <algorithm>

namespace Focus {

int LegBook::room() const
{
    return std::max(0, m_most - count());
}

} // namespace Focus
