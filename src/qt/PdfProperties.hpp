// What a PDF tells of itself beyond what Qt writes: its author and its language.
#pragma once

#include <QByteArray>

namespace ordwise {

// The file of QPdfWriter with an author and a language such as "en", appended as an update, which every
// reader of PDF takes in place of the first entries. A file that does not look like Qt's stays as it is.
[[nodiscard]] QByteArray withProperties(const QByteArray& pdf, const QByteArray& author, const QByteArray& language);

}  // namespace ordwise
