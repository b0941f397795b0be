#include "WebPages.hpp"

#include "Platform.hpp"
#include "Windows.hpp"

#include <string_view>

namespace ordwise {
namespace {

struct WebPageRow {
    WebPage page;
    std::string_view path;  // below the site
};

constexpr WebPageRow rows[] = {
    {WebPage::Ordwise, "/ordwise/"},
    {WebPage::Home, "/"},
    {WebPage::Support, "/ordwise/support/"},
};

}  // namespace

std::string addressOf(WebPage page) {
    for (const WebPageRow& row : rows) {
        if (row.page == page) return ORDWISE_WEB_SITE + std::string(row.path);
    }
    return ORDWISE_WEB_SITE;
}

void openWebPage(WebPage page) {
    const std::string address = addressOf(page);
    const bool opened = platform.browser != nullptr && platform.browser->open(address);
    frmMain.StatusText = opened ? "" : "No browser could be opened. The page is " + address;
}

}  // namespace ordwise
