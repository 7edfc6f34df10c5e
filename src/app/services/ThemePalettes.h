#pragma once

#include "app/services/Themes.h"

#include <QPalette>

// The colours of a theme that brings its own; roles that it does not name are left to the style. An empty
// palette for all other themes.
[[nodiscard]] QPalette themePalette(Themes::Theme theme);
