#include "mdl_Interruption.h"

#include <utility>

namespace {

constexpr int pollsBetweenQuestions = 64;

}  // namespace

constinit thread_local mdl_Interruption::Question mdl_Interruption::s_question = nullptr;
constinit thread_local int mdl_Interruption::s_left = pollsBetweenQuestions;

mdl_Interruption::Question mdl_Interruption::Set(Question question) noexcept {
    return std::exchange(s_question, question);
}

void mdl_Interruption::Ask() {
    // Set again first, since the question may throw.
    s_left = pollsBetweenQuestions;
    s_question();
}
