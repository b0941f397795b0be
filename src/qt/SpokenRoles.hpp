// What screen readers take the desk for: Qt knows its sheets as widgets like any other.
#pragma once

namespace ordwise {

// From then on the desk is a document, its sheets are text and its figures pictures with boxes. Once for a
// program is enough, more often does no harm.
void giveSpokenRoles();

}  // namespace ordwise
