// The order in which the program starts and ends.
#pragma once

#include <string_view>

namespace ordwise {

// Starts the program: the pointer is noted, the splash reads the settings and builds the topic tree,
// then the frame takes the command line, makes the directory of saved problems and loads the problem
// that the command line names. Expects a fresh program and the platform set. A missing, broken or
// unwritable file of the user never stands in the way.
void startUp(std::string_view commandLine);

// The splash as it is shown, when its time is over, and when it is gone.
void Logo_Load();
void logotime_Timer();
void Logo_Unload();

// Ends the program, by Exit, by closing the frame, or when the session ends: unloads the graph window
// and writes the settings. Saying it twice does no harm.
void shutDown();

}  // namespace ordwise
