#include "CheckTopics.hpp"

namespace ordwise {
namespace {

// clang-format off
constexpr CheckTopic rows[] = {
    { 76, LineKind::Expression, EndForm::Number},
    { 81, LineKind::Expression, EndForm::Number},
    { 82, LineKind::Expression, EndForm::Roots},
    { 83, LineKind::Expression, EndForm::PrimePowers},
    { 84, LineKind::Expression, EndForm::Primes},
    { 91, LineKind::Expression, EndForm::Number},
    {101, LineKind::Equation,   EndForm::Solved},
    {102, LineKind::Expression, EndForm::Polynomial},
    {103, LineKind::Evaluation, EndForm::Number},
    {105, LineKind::Equation,   EndForm::Solved},
    {106, LineKind::Drawing,    EndForm::Answer},
    {108, LineKind::Drawing,    EndForm::Answer},
    {120, LineKind::Expression, EndForm::Number},
    {121, LineKind::Expression, EndForm::Number},
    {150, LineKind::Expression, EndForm::Polynomial},
};
// clang-format on

}  // namespace

CheckTopic checkTopicOf(int type) {
    for (const CheckTopic& row : rows) {
        if (row.type == type) return row;
    }
    return {type, LineKind::Answer, EndForm::Answer};
}

}  // namespace ordwise
