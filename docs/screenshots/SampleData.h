#pragma once

#include <QString>

// Fills a directory with painted landscapes in several formats and sizes, two clips, sidecars for some of
// them, and a model file in "models". Ends the program when something cannot be written.
void makeSampleData(const QString& directory);
