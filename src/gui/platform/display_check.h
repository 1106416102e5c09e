// The start of the desktop program where no display can be had: without one
// it says so in one plain line and ends with its own exit code, rather than
// with the toolkit's abort and its advice to reinstall.
#pragma once

namespace veridraw::gui {

// Ends the program at once, with the line, when no display or platform is
// named in the environment at all.
void exitIfNoDisplayInSight();
// Called before the toolkit connects to the display: its messages are held
// back, and a fatal one (the platform can't connect) ends the program with
// the line instead, before any abort and with no core file.
void holdMessagesWhileConnecting();
// Called once the connection stands: the held messages go out as usual.
void displayConnected();

}  // namespace veridraw::gui
