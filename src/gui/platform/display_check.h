// The start of the desktop program where no display can be had: without one
// it says so in one plain line and ends with its own exit code, rather than
// with the toolkit's abort and its advice to reinstall.
#pragma once

namespace veridraw::gui {

// Ends the program at once, with the line, when no display or platform is
// named in the environment at all, or when Wayland alone is asked for and
// its socket isn't there.
void exitIfNoDisplayInSight();
// Called before the toolkit connects to the display: its messages are held
// back, and a fatal one ends the program with a line instead, before any
// abort and with no core file: the line that no display was found when the
// platform can't connect, or one that names the platform asked for when it
// isn't installed.
void holdMessagesWhileConnecting();
// Called once the connection stands: the held messages go out as usual.
void displayConnected();

}  // namespace veridraw::gui
