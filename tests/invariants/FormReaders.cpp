#include "FormReaders.hpp"

#include "TextTools.hpp"

#include <map>
#include <stdexcept>
#include <vector>

namespace ordwise::test {
namespace {

class LatexReader {
public:
    explicit LatexReader(std::string_view text) : text_(text) {}

    std::string read() {
        std::string out;
        while (at_ < text_.size() && text_[at_] != '}') out += next();
        return out;
    }

private:
    std::string next() {
        const char c = text_[at_++];
        if (c == '{') return closed(read());
        if (c == '^') return group() == "\xC2\xB0" ? "^o^" : "^" + last_ + "^";
        return c == '\\' ? command() : std::string(1, c);
    }

    std::string closed(std::string inside) {
        if (at_ >= text_.size() || text_[at_] != '}') throw std::runtime_error("an open brace");
        ++at_;
        return inside;
    }

    std::string group() {
        if (at_ >= text_.size() || text_[at_] != '{') throw std::runtime_error("no brace");
        ++at_;
        return last_ = closed(read());
    }

    std::string command() {
        const std::size_t begin = at_;
        while (at_ < text_.size() && std::isalpha(static_cast<unsigned char>(text_[at_])) != 0) ++at_;
        const std::string name(text_.substr(begin, at_ - begin));
        static const std::map<std::string, std::string> signs{{"cdot", "*"}, {"div", "{"},        {"pi", "`"},
                                                              {"pm", "\\"},  {"ne", "$"},         {"left", ""},
                                                              {"right", ""}, {"circ", "\xC2\xB0"}};
        if (const auto sign = signs.find(name); sign != signs.end()) return sign->second;
        if (name == "frac") {
            const std::string above = group();
            return "#" + above + "/" + group() + "#";
        }
        if (name == "sqrt") return "~" + group() + "~";
        if (name == "text" || name == "mathrm") return group();
        if (name == "textcolor") return group() == "red" ? group() : throw std::runtime_error("a colour");
        if (name.empty()) return std::string(1, text_[at_++]);  // "\ ", "\%"
        throw std::runtime_error("the command " + name);
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::string last_;
};

class MathmlReader {
public:
    explicit MathmlReader(std::string_view text) : text_(text) {}

    // All that stands in one element, a text a child.
    std::vector<std::string> children() {
        std::vector<std::string> texts;
        while (at_ < text_.size() && text_.substr(at_, 2) != "</") texts.push_back(element());
        return texts;
    }

private:
    std::string element() {
        if (text_[at_] != '<') throw std::runtime_error("text between elements");
        const std::size_t end = text_.find('>', at_);
        const std::string_view tag = text_.substr(at_ + 1, end - at_ - 1);
        const std::string name(tag.substr(0, tag.find(' ')));
        at_ = end + 1;
        const bool leaf = name == "mn" || name == "mi" || name == "mo" || name == "mtext";
        const std::string content = leaf ? characters() : construct(name);
        const std::string close = "</" + name + ">";
        if (text_.substr(at_, close.size()) != close) throw std::runtime_error(name + " is not closed");
        at_ += close.size();
        return content;
    }

    std::string construct(const std::string& name) {
        const std::vector<std::string> parts = children();
        if (name == "math" || name == "mrow") return joined(parts, "");
        if (name == "msqrt") return "~" + joined(parts, "") + "~";
        if (parts.size() != 2) throw std::runtime_error(name + " has not two parts");
        if (name == "mfrac") return "#" + parts[0] + "/" + parts[1] + "#";
        if (name == "msup") return parts[0] + "^" + parts[1] + "^";
        throw std::runtime_error("the element " + name);
    }

    std::string characters() {
        const std::size_t end = text_.find('<', at_);
        std::string content(text_.substr(at_, end - at_));
        at_ = end;
        static const std::vector<std::pair<std::string, std::string>> characters{
            {"&#x2062;", ""},   {"&#xA0;", ""},        {"\xE2\x88\x92", "-"}, {"\xE2\x8B\x85", "*"}, {"\xC3\xB7", "{"},
            {"\xC2\xB1", "\\"}, {"\xE2\x89\xA0", "$"}, {"\xCF\x80", "`"},     {"\xC2\xB0", "^o^"},   {"&lt;", "<"},
            {"&gt;", ">"},      {"&quot;", "\""},      {"&amp;", "&"}};
        for (const auto& [written, sign] : characters) content = replaced(content, written, sign);
        return content;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

}  // namespace

std::string markupOfLatex(std::string_view latex) {
    LatexReader reader(latex);
    return bareMarkup(reader.read());
}

std::string markupOfMathml(std::string_view mathml) {
    MathmlReader reader(mathml);
    return bareMarkup(joined(reader.children(), ""));
}

std::string bareMarkup(std::string_view markup) {
    std::string bare;
    for (const char c : markup) {
        if (c != ' ' && c != '[' && c != ']') bare += c;
    }
    return bare;
}

}  // namespace ordwise::test
