#pragma once

class QMainWindow;

// Keeps a message in the window's status bar until the next one. A menu that is opened or hovered over sends
// the window an empty status tip for each entry without a tip, which would clear the message.
void keepMessages(QMainWindow* window);
