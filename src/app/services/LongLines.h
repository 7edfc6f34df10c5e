#pragma once

class QPlainTextEdit;

// Lets a text edit take megabytes without a blank in bearable time. Looking for a place to break such a run
// costs time in the square of its length, so while the edit holds one, its lines break anywhere.
void keepLongLinesQuick(QPlainTextEdit* edit);
