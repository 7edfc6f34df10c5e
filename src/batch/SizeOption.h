#pragma once

#include <QSize>

class Arguments;

// The value of --size, of which one side may be -1.
[[nodiscard]] QSize sizeOption(Arguments& arguments);
