#include "GraphPlace.hpp"

#include <algorithm>

namespace ordwise {
namespace {

constexpr double leastPicture = 260;  // a smaller one is not worth a look

}  // namespace

WindowPlace placeOfGraph(const WindowPlace& screen, const WindowPlace& frame, double sheetsEnd,
                         const WindowPlace& wanted, double strip) {
    const double end = screen.left + screen.width;
    WindowPlace place = wanted;
    const double tooTall = std::max(0.0, place.height - screen.height);
    place.width -= tooTall;
    place.height -= tooTall;
    const double beside = std::min(frame.left + frame.width, end);
    if (end - beside >= place.width) {
        place.left = beside;
    } else {
        const double tooWide = std::max(0.0, place.width - (end - sheetsEnd));
        const bool fits = place.width - strip - tooWide >= leastPicture;
        place.width = std::min(place.width - (fits ? tooWide : 0), screen.width);
        place.height -= fits ? tooWide : 0;
        place.left = end - place.width;
    }
    place.top = std::clamp(frame.top, screen.top, std::max(screen.top, screen.top + screen.height - place.height));
    return place;
}

}  // namespace ordwise
