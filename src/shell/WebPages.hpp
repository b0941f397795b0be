// The maker's pages on the web. The program itself needs none of them.
#pragma once

#include <string>

namespace ordwise {

enum class WebPage { Ordwise, Home, Support };

// e.g. Support -> "https://www.halvern.example/ordwise/support/"
[[nodiscard]] std::string addressOf(WebPage page);

// Opens the page in the user's browser. Where none can be opened the status bar names the address, so
// that it can be typed in elsewhere.
void openWebPage(WebPage page);

}  // namespace ordwise
