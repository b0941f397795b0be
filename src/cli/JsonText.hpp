// JSON text written straight from the values, members in the order in which they are given: what a
// worksheet server sends is made once, not built as a tree, written out and taken down again.
//
//     JsonText text;
//     text.object([&] { text.member("index").number(1); text.member("line").string("2+3"); });
//     std::move(text).take()  ->  {"index":1,"line":"2+3"}
#pragma once

#include <string>
#include <string_view>

namespace ordwise {

class JsonText {
public:
    // `write` adds the members, or the elements.
    template <class Write>
    void object(Write write) {
        open('{');
        write();
        close('}');
    }
    template <class Write>
    void array(Write write) {
        open('[');
        write();
        close(']');
    }

    // Names what is added next. The name is one of ours, with nothing in it to be escaped.
    JsonText& member(std::string_view name);

    // Text that is no UTF-8 gets a replacement character for each byte that is none.
    void string(std::string_view value);
    void number(int value);
    void number(double value);
    void flag(bool value) { raw(value ? "true" : "false"); }
    void null() { raw("null"); }

    [[nodiscard]] std::string take() && { return std::move(text_); }

private:
    void open(char bracket);
    void close(char bracket);
    void separate();
    void raw(std::string_view value);

    std::string text_;
    bool behindValue_ = false;  // a comma is due before the next value or name
};

}  // namespace ordwise
