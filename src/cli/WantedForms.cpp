#include "WantedForms.hpp"

#include "Forms.hpp"
#include "Requests.hpp"
#include "TextTools.hpp"

#include <algorithm>

namespace ordwise {

WantedForms::WantedForms(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        for (const std::string& each : split(name, ',')) {
            const Form* form = findForm(each);
            if (form == nullptr)
                throw BadRequest("There is no form \"" + each + "\"; it is latex, mathml, spoken or plain.");
            wanted_[static_cast<std::size_t>(form - forms.data())] = true;
        }
    }
}

void WantedForms::write(JsonText& answer, int problemType, std::string_view line, std::string_view note) const {
    if (std::find(wanted_.begin(), wanted_.end(), true) == wanted_.end()) return;
    const Letters letters = lettersOf(problemType);
    const auto writeEach = [&](std::string_view member, std::string_view text, auto convert) {
        answer.member(member).object([&] {
            for (std::size_t i = 0; i < forms.size(); ++i) {
                if (wanted_[i]) answer.member(forms[i].name).string((forms[i].*convert)(text, letters));
            }
        });
    };
    writeEach("forms", line, &Form::ofLine);
    if (!note.empty()) writeEach("noteForms", note, &Form::ofNote);
}

}  // namespace ordwise
