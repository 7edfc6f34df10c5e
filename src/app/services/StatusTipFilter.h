#pragma once

class QMainWindow;

// Lets a message of the window's status bar stay until the next one. Any menu that is opened or crossed sends
// the window the empty tips of entries without one, which would clear it.
void keepMessages(QMainWindow* window);
