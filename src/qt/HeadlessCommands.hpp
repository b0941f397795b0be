// The commands of `ordwise` that open no window, and the command line that all share.
#pragma once

#include <optional>

class QCommandLineParser;

namespace ordwise {

// Pictures, pages and words about the program need a painter and fonts, but no display.
[[nodiscard]] bool needsNoDisplay(int argc, char** argv);

// The options of the program and its help.
void addOptions(QCommandLineParser& parser);

// Runs what the command line asks for, with a complaint on standard error: 0 done, 1 refused, 2 the
// command line or a file could not be read. Empty when the desk is asked for.
[[nodiscard]] std::optional<int> runHeadless(const QCommandLineParser& parser);

}  // namespace ordwise
