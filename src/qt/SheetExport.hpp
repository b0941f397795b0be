// Pictures of the solved sheets as files: PNG, SVG or PDF, without a window.
#pragma once

#include <QString>

#include <string>

namespace ordwise {

// Writes the sheets that lie on the desk; the ending of the name says how. A PDF has a page for
// each, a picture has them one below the other. False with a sentence in `reason` if it could not.
[[nodiscard]] bool exportSheets(const QString& file, QString& reason);

}  // namespace ordwise
