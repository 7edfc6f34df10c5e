#pragma once

class QPlainTextEdit;

// Keeps a text edit responsive with megabytes of text without a blank. Searching such a run for a word
// boundary to wrap at takes time quadratic in its length, so while the edit contains one, its lines wrap
// anywhere.
void keepLongLinesQuick(QPlainTextEdit* edit);
