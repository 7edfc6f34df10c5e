#pragma once

#include <cstdlib>

inline void require(bool isTrue) {
    if (!isTrue)
        std::abort();
}
