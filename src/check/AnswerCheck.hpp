// Scripted topics: the answer alone is looked at.
#pragma once

#include "LineSession.hpp"

namespace ordwise {

// Judges a text as the answer of the problem on the desk. Expects a session of a scripted topic.
const WorkedLine& addAnswer(LineSession& session, const std::string& text);

}  // namespace ordwise
