#include "Forms.hpp"

#include "LatexForm.hpp"
#include "MathMLForm.hpp"
#include "PlainForm.hpp"
#include "SpokenForm.hpp"

namespace ordwise {
namespace {

std::string latexLine(std::string_view markup, Letters letters) {
    return latexOf(readMarkup(markup, letters));
}

std::string latexNote(std::string_view note, Letters letters) {
    return latexOf(readNote(note, letters));
}

std::string mathmlLine(std::string_view markup, Letters letters) {
    return mathmlOf(readMarkup(markup, letters));
}

std::string mathmlNote(std::string_view note, Letters letters) {
    return mathmlOf(readNote(note, letters));
}

// What is seen is the same whatever a letter is.
std::string plain(std::string_view markup, Letters) {
    return plainText(markup);
}

}  // namespace

const std::array<Form, 4> forms{{
    {"latex", latexLine, latexNote},
    {"mathml", mathmlLine, mathmlNote},
    {"spoken", spokenLine, spokenNote},
    {"plain", plain, plain},
}};

const Form* findForm(std::string_view name) {
    for (const Form& form : forms) {
        if (form.name == name) return &form;
    }
    return nullptr;
}

}  // namespace ordwise
