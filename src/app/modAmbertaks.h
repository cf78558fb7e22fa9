#pragma once

/// Does what the command line asks for (see CommandRun). When it asks for nothing this is the start-up
/// routine: it refuses to run twice on one program folder, reads the settings, loads the main window and runs
/// until the program is ended. Returns the exit status: 0 when it ran or another copy was running, 1 when the
/// start failed.
int runAmbertask(int argc, char** argv);
