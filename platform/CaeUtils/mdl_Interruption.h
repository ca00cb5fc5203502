#pragma once

/// A host's way into calls that take long. While a question is set, walks over many objects of this
/// thread put it now and then, between two objects; what it throws ends the call as any other
/// failure would, so nothing is left half done. Without one, a walk costs a comparison an object.
class mdl_Interruption {
public:
    using Question = void (*)();

    /// Sets the question of this thread, null for none, and gives the former.
    static Question Set(Question question) noexcept;
    /// To be called for each object of a walk, where an exception may pass.
    static void Poll() {
        if (s_question && --s_left <= 0) Ask();
    }

private:
    static void Ask();

    static constinit thread_local Question s_question;
    static constinit thread_local int s_left;
};
