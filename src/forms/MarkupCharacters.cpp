#include "MarkupCharacters.hpp"

namespace ordwise {
namespace {

bool digitAt(std::string_view text, std::size_t i) {
    return i < text.size() && isAsciiDigit(text[i]);
}

bool letterAt(std::string_view text, std::size_t i) {
    return i < text.size() && isAsciiLetter(text[i]);
}

std::size_t digitsEnd(std::string_view text, std::size_t i) {
    while (digitAt(text, i)) ++i;
    return i;
}

}  // namespace

std::size_t numberEnd(std::string_view text, std::size_t begin) {
    std::size_t end = digitsEnd(text, begin);
    if (end < text.size() && text[end] == '.' && digitAt(text, end + 1)) end = digitsEnd(text, end + 1);
    if (end == begin || end == text.size() || text[end] != 'E') return end;
    const bool sign = end + 1 < text.size() && (text[end + 1] == '+' || text[end + 1] == '-');
    const std::size_t exponent = end + (sign ? 2 : 1);
    return digitAt(text, exponent) ? digitsEnd(text, exponent) : end;
}

std::size_t wordEnd(std::string_view text, std::size_t begin) {
    std::size_t end = begin;
    const auto apostrophe = [&] { return end > begin && text[end] == '\'' && letterAt(text, end + 1); };
    while (letterAt(text, end) || (end < text.size() && apostrophe())) ++end;
    return end;
}

}  // namespace ordwise
