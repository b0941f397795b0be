// `ordwise --print-test FILE`: practice tests that `ordwise-cli test --json` has made, as pages in a
// PDF, the very ones that the desk prints.
#pragma once

#include "ExportCommand.hpp"

#include <QByteArray>

namespace ordwise {

// `json` holds a test a line; blank lines are skipped. Each version begins on a page of its own, and
// so does its key. Unreadable: a line that is no practice test. Refused: a line of a test that cannot
// be drawn, a file that cannot be written. Nothing is written then.
// e.g. {"heading": ["Class 7b", "Test", ""], "lines": ["", "Round the following numbers:", "1) 2.45"]}
[[nodiscard]] CommandEnd printTests(const QByteArray& json, const QString& file, const PaperSize& paper);

}  // namespace ordwise
