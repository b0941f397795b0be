#include "TextTools.hpp"

#include <algorithm>

namespace ordwise {

std::string replaced(std::string text, std::string_view from, std::string_view to) {
    if (from.empty()) return text;
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    std::size_t start = 0;
    for (std::size_t at = 0; (at = text.find(separator, start)) != std::string_view::npos; start = at + 1)
        pieces.emplace_back(text.substr(start, at - start));
    pieces.emplace_back(text.substr(start));
    return pieces;
}

std::string joined(const std::vector<std::string>& pieces, std::string_view separator) {
    std::string text;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i > 0) text += separator;
        text += pieces[i];
    }
    return text;
}

std::string joined(std::span<const std::string> pieces) {
    std::size_t length = 0;
    for (const std::string& piece : pieces) length += piece.size();
    std::string text(length, '\0');
    char* at = text.data();
    for (const std::string& piece : pieces) {
        if (piece.size() == 1) {
            *at++ = piece[0];
        } else if (!piece.empty()) {
            at = std::copy(piece.begin(), piece.end(), at);
        }
    }
    return text;
}

std::string trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string lowered(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

std::vector<std::string> characters(std::string_view utf8) {
    std::vector<std::string> result;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
        for (std::size_t k = 1; k < length; ++k) {
            if (i + k >= utf8.size() || (static_cast<unsigned char>(utf8[i + k]) & 0xC0U) != 0x80U) length = 1;
        }
        result.emplace_back(utf8.substr(i, length));
        i += length;
    }
    return result;
}

}  // namespace ordwise
